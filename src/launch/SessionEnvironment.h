#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

// The environment of the user's desktop session, which neither sudo nor pkexec hands on.
namespace veldmark {

// Whether a variable belongs to the session (display, bus, language, desktop) and not to the
// program that asks. Proxies do not belong to it, nor what makes a program load code.
bool isSessionVariable(std::string_view name);

// "NAME=VALUE" entries of the block that the kernel shows as /proc/PID/environ, session variables
// only. The first of a name counts; what is not text with a name is left out.
std::vector<std::string> sessionVariables(std::string_view block);

// The session variables of the nearest ancestor of `process` that belongs to this process's user,
// which is the program that asked for the administrator's approval. Read with the user's own
// rights. Empty when there is none.
std::vector<std::string> ancestorSession(pid_t process);

// Replaces this process's environment: home, name and shell from the account, a fixed search path,
// `session` above that, and the runtime folder and bus of the account where the session names none.
void takeEnvironment(const std::vector<std::string> &session);

} // namespace veldmark
