#pragma once

#include <string>
#include <string_view>

// What the names of control groups say. Users make such names as they like: whatever comes in, what
// comes out is short, printable and without blanks.
namespace veldmark {

// The application that a group below a user's app.slice was made for, by its id: "firefox" for
// "app-gnome-firefox-1234.scope". The launcher, and what tells one start of a program from the
// next, are left out. A group that `veldmarkctl run-as NAME` has made is "as:NAME". Bytes other
// than letters, digits and . _ : @ + - are written as \xNN. Empty when the name is no unit's.
[[nodiscard]] std::string applicationOf(std::string_view group);

// "session-2" for "session-2.scope", a login session's group; empty for any other.
[[nodiscard]] std::string loginSessionOf(std::string_view group);

} // namespace veldmark
