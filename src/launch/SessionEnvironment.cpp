#include "launch/SessionEnvironment.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace veldmark {

namespace {

constexpr std::size_t environmentLimitBytes = 1 << 20;
constexpr int generationLimit = 16; // from here to the calling program there are two to five

struct ProcessFacts {
    uid_t user = 0;
    pid_t parent = 0;
};

std::optional<ProcessFacts> factsOf(pid_t process)
{
    std::ifstream file("/proc/" + std::to_string(process) + "/status");
    ProcessFacts facts;
    bool hasUser = false;
    bool hasParent = false;
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        std::string key;
        words >> key;
        if (key == "PPid:")
            hasParent = static_cast<bool>(words >> facts.parent);
        if (key == "Uid:")
            hasUser = static_cast<bool>(words >> facts.user);
    }
    if (!hasUser || !hasParent)
        return std::nullopt;
    return facts;
}

std::string environmentOf(pid_t process)
{
    std::ifstream file("/proc/" + std::to_string(process) + "/environ", std::ios::binary);
    std::string block(environmentLimitBytes, '\0');
    file.read(block.data(), static_cast<std::streamsize>(block.size()));
    block.resize(static_cast<std::size_t>(file.gcount()));
    return block;
}

bool isOwn(const std::string &path, mode_t kind)
{
    struct stat status { };
    return lstat(path.c_str(), &status) == 0 && (status.st_mode & S_IFMT) == kind
        && status.st_uid == getuid();
}

} // namespace

bool isSessionVariable(std::string_view name)
{
    static constexpr std::array names = {
        std::string_view("DISPLAY"),          std::string_view("WAYLAND_DISPLAY"),
        std::string_view("XAUTHORITY"),       std::string_view("DBUS_SESSION_BUS_ADDRESS"),
        std::string_view("DESKTOP_SESSION"),  std::string_view("GNOME_DESKTOP_SESSION_ID"),
        std::string_view("KDE_FULL_SESSION"), std::string_view("KDE_SESSION_VERSION"),
        std::string_view("SESSION_MANAGER"),  std::string_view("LANG"),
        std::string_view("LANGUAGE"),         std::string_view("TZ"),
        std::string_view("GTK_IM_MODULE"),    std::string_view("QT_IM_MODULE"),
        std::string_view("XMODIFIERS"),
    };
    return std::find(names.begin(), names.end(), name) != names.end() || name.substr(0, 4) == "XDG_"
        || name.substr(0, 3) == "LC_";
}

std::vector<std::string> sessionVariables(std::string_view block)
{
    std::vector<std::string> found;
    std::vector<std::string_view> names;
    while (!block.empty()) {
        const auto end = block.find('\0');
        const auto entry = block.substr(0, end);
        block.remove_prefix(end == std::string_view::npos ? block.size() : end + 1);
        const auto equals = entry.find('=');
        if (equals == std::string_view::npos)
            continue;
        const auto name = entry.substr(0, equals);
        if (!isSessionVariable(name) || std::find(names.begin(), names.end(), name) != names.end())
            continue;
        names.push_back(name);
        found.emplace_back(entry);
    }
    return found;
}

std::vector<std::string> ancestorSession(pid_t process)
{
    for (int generation = 0; generation < generationLimit && process > 1; ++generation) {
        const auto facts = factsOf(process);
        if (!facts)
            break;
        if (facts->user == getuid() && process != getpid()) {
            if (auto session = sessionVariables(environmentOf(process)); !session.empty())
                return session;
        }
        process = facts->parent;
    }
    return {};
}

void takeEnvironment(const std::vector<std::string> &session)
{
    clearenv();
    setenv("PATH", "/usr/local/bin:/usr/bin:/bin:/usr/local/games:/usr/games", 1);
    if (const passwd *account = getpwuid(getuid())) {
        setenv("HOME", account->pw_dir, 1);
        setenv("USER", account->pw_name, 1);
        setenv("LOGNAME", account->pw_name, 1);
        setenv("SHELL", account->pw_shell, 1);
    }
    const std::string runtime = "/run/user/" + std::to_string(getuid());
    if (isOwn(runtime, S_IFDIR)) {
        setenv("XDG_RUNTIME_DIR", runtime.c_str(), 1);
        if (isOwn(runtime + "/bus", S_IFSOCK))
            setenv("DBUS_SESSION_BUS_ADDRESS", ("unix:path=" + runtime + "/bus").c_str(), 1);
    }
    for (const std::string &entry : session) {
        const auto equals = entry.find('=');
        setenv(entry.substr(0, equals).c_str(), entry.c_str() + equals + 1, 1);
    }
}

} // namespace veldmark
