// veldmark-launch --app PATH: starts an application or a program in the desktop session of the user
// who requested it.
//
// The root helper runs it inside the control group that the kill switch lets pass, already as that
// user. It refuses to run with any of root's rights. Exit status 0: started. 1: one line on
// standard error has the reason.

#include "launch/Application.h"
#include "launch/SessionEnvironment.h"

#include <cstdio>
#include <string>
#include <string_view>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

int fail(int errors, const std::string &text)
{
    dprintf(errors, "%s\n", text.c_str());
    return 1;
}

// The application gets none of the helper's descriptors: a reader of the helper's output would
// otherwise wait for the application's end.
bool closeOutputs()
{
    const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
    return nothing >= 0 && dup2(nothing, 0) == 0 && dup2(nothing, 1) == 1 && dup2(nothing, 2) == 2;
}

} // namespace

int main(int argc, char **argv)
{
    const int errors = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3);
    uid_t real = 0, effective = 0, saved = 0;
    getresuid(&real, &effective, &saved);
    if (real == 0 || effective == 0 || saved == 0)
        return fail(errors, "Applications are not opened as root.");
    if (argc != 3 || std::string_view(argv[1]) != "--app" || argv[2][0] != '/')
        return fail(errors, "usage: veldmark-launch --app PATH");

    veldmark::takeEnvironment(veldmark::ancestorSession(getppid()));
    umask(022);
    const char *home = getenv("HOME");
    if ((!home || chdir(home) != 0) && chdir("/") != 0)
        return fail(errors, "The home folder cannot be entered.");
    setsid(); // the application outlives the terminal of the calling command
    if (!closeOutputs())
        return fail(errors, "The application could not be started.");
    const std::string problem = veldmark::startApplication(argv[2]);
    return problem.empty() ? 0 : fail(errors, problem);
}
