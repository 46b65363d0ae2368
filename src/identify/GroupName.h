#pragma once

#include <string>
#include <string_view>

// Parses the names of control groups. Users choose such names freely: for any input the result is
// short, printable and without blanks.
namespace veldmark {

// The id of the application that a group below a user's app.slice belongs to: "firefox" for
// "app-gnome-firefox-1234.scope". The launcher and the part that differs between starts are left
// out. A group of `veldmarkctl run-as NAME` is "as:NAME". Bytes other than letters, digits and . _
// : @ + - become \xNN. Empty when the name is not a unit's.
[[nodiscard]] std::string applicationOf(std::string_view group);

// "session-2" for "session-2.scope", a login session's group; empty for any other.
[[nodiscard]] std::string loginSessionOf(std::string_view group);

} // namespace veldmark
