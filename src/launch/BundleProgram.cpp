#include "launch/BundleProgram.h"

#include <array>

#include <sys/wait.h>
#include <unistd.h>

namespace veldmark {

namespace {

constexpr std::size_t limitBytes = 1024;

// A program's standard output, empty when it fails. Its standard error is discarded.
std::string output(const std::array<const char *, 5> &words)
{
    int ends[2];
    if (pipe(ends) != 0)
        return {};
    const pid_t child = fork();
    if (child == 0) {
        close(STDERR_FILENO);
        if (dup2(ends[1], STDOUT_FILENO) >= 0)
            execv(words[0], const_cast<char **>(words.data()));
        _exit(127);
    }
    close(ends[1]);
    std::string text;
    std::array<char, 256> piece;
    ssize_t size = 0;
    while (child > 0 && (size = read(ends[0], piece.data(), piece.size())) > 0
           && text.size() < limitBytes)
        text.append(piece.data(), static_cast<std::size_t>(size));
    close(ends[0]);
    int status = -1;
    if (child < 0 || waitpid(child, &status, 0) != child || status != 0)
        return {};
    return text;
}

} // namespace

std::string bundleProgram(const std::string &bundle)
{
    const std::string list = bundle + "/Contents/Info.plist";
    std::string name = output(
        {"/usr/libexec/PlistBuddy", "-c", "Print :CFBundleExecutable", list.c_str(), nullptr});
    while (!name.empty() && name.back() == '\n')
        name.pop_back();
    // A file of that folder only.
    if (name.empty() || name == "." || name == ".."
        || name.find_first_of("/\n") != std::string::npos)
        return {};
    const std::string program = bundle + "/Contents/MacOS/" + name;
    return access(program.c_str(), X_OK) == 0 ? program : std::string();
}

} // namespace veldmark
