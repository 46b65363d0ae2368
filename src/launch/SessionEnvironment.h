#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

// The environment of the user's desktop session, which sudo and pkexec remove.
namespace veldmark {

// Whether a variable belongs to the session (display, bus, language, desktop) rather than to the
// calling program. Proxy variables do not, nor variables that make a program load code.
bool isSessionVariable(std::string_view name);

// The session variables among the "NAME=VALUE" entries of `block`, as the kernel shows them in
// /proc/PID/environ. The first entry of a name counts; entries without a name are left out.
std::vector<std::string> sessionVariables(std::string_view block);

// The session variables of the nearest ancestor of `process` that runs as this process's user: the
// program that requested the administrator's approval. Read with the user's own rights. Empty when
// there is none.
std::vector<std::string> ancestorSession(pid_t process);

// Replaces this process's environment: home, name and shell from the account, a fixed search path,
// then `session`, which takes precedence. The account's runtime folder and bus are used when the
// session has none.
void takeEnvironment(const std::vector<std::string> &session);

} // namespace veldmark
