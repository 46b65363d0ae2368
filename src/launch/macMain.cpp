// veldmark-launch --app PATH, on macOS: starts an application bundle for the user who requested it.
//
// The root helper runs it in the user's login session, already as that user, with the group that
// the kill switch lets pass. It refuses to run with any of root's rights. Launch Services would
// start the application elsewhere and with the user's own group, so this program starts its
// executable directly. Exit status 0: started. 1: one line on standard error has the reason.

#include "launch/BundleProgram.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include <climits>
#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

int fail(const std::string &text)
{
    std::fprintf(stderr, "%s\n", text.c_str());
    return 1;
}

// Sets the variables that a login session gives an application. They come from the account and the
// system, not from the helper.
void takeEnvironment(const passwd &account)
{
    std::string temporary;
#ifdef _CS_DARWIN_USER_TEMP_DIR
    std::array<char, PATH_MAX> folder;
    const std::size_t size = confstr(_CS_DARWIN_USER_TEMP_DIR, folder.data(), folder.size());
    if (size > 0 && size <= folder.size())
        temporary = folder.data();
#endif
    const std::array<const char *, 5> taken = {"PATH", "LC_ALL", "PWD", "OLDPWD", "SHLVL"};
    for (const char *name : taken)
        unsetenv(name);
    setenv("PATH", "/usr/bin:/bin:/usr/sbin:/sbin", 1);
    setenv("HOME", account.pw_dir, 1);
    setenv("USER", account.pw_name, 1);
    setenv("LOGNAME", account.pw_name, 1);
    setenv("SHELL", account.pw_shell, 1);
    if (!temporary.empty())
        setenv("TMPDIR", temporary.c_str(), 1);
}

} // namespace

int main(int argc, char **argv)
{
    if (getuid() == 0 || geteuid() == 0)
        return fail("Applications are not opened as root.");
    if (argc != 3 || std::string_view(argv[1]) != "--app" || argv[2][0] != '/')
        return fail("usage: veldmark-launch --app PATH");
    const passwd *account = getpwuid(getuid());
    if (!account)
        return fail("The user is not known on this system.");

    std::string bundle = argv[2];
    while (bundle.size() > 1 && bundle.back() == '/')
        bundle.pop_back();
    const std::string program = veldmark::bundleProgram(bundle);
    if (program.empty())
        return fail("There is no application at " + bundle + ".");

    takeEnvironment(*account);
    umask(022);
    if (chdir(account->pw_dir) != 0 && chdir("/") != 0)
        return fail("The home folder cannot be entered.");

    // The pipe closes when the application runs, and carries an error otherwise.
    int ends[2];
    if (pipe(ends) != 0 || fcntl(ends[1], F_SETFD, FD_CLOEXEC) != 0)
        return fail("The application could not be started.");
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        setsid(); // the application outlives the terminal of the calling command
        const int nothing = open("/dev/null", O_RDWR);
        if (nothing >= 0 && dup2(nothing, 0) == 0 && dup2(nothing, 1) == 1 && dup2(nothing, 2) == 2)
            execl(program.c_str(), program.c_str(), static_cast<char *>(nullptr));
        const ssize_t told = write(ends[1], "x", 1);
        _exit(told == 1 ? 127 : 126);
    }
    close(ends[1]);
    char answer = 0;
    if (child < 0 || read(ends[0], &answer, 1) != 0)
        return fail("The application could not be started.");
    return 0;
}
