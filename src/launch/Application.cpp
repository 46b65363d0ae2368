#include "launch/Application.h"

#include <memory>

#include <gio/gdesktopappinfo.h>
#include <sys/stat.h>
#include <unistd.h>

namespace veldmark {

namespace {

constexpr std::string_view entrySuffix = ".desktop";

struct Release {
    void operator()(GKeyFile *file) const { g_key_file_unref(file); }
    void operator()(GDesktopAppInfo *info) const { g_object_unref(info); }
    void operator()(GAppLaunchContext *context) const { g_object_unref(context); }
    void operator()(GError *error) const { g_error_free(error); }
};

std::string sentence(const std::string &start, GError *error)
{
    const std::unique_ptr<GError, Release> owned(error);
    return owned ? start + " (" + owned->message + ")." : start + ".";
}

std::string startEntry(const std::string &path)
{
    const std::unique_ptr<GKeyFile, Release> file(g_key_file_new());
    GError *error = nullptr;
    if (!g_key_file_load_from_file(file.get(), path.c_str(), G_KEY_FILE_NONE, &error))
        return sentence("The desktop entry cannot be read", error);
    g_key_file_set_boolean(file.get(), G_KEY_FILE_DESKTOP_GROUP,
                           G_KEY_FILE_DESKTOP_KEY_DBUS_ACTIVATABLE, FALSE);
    const std::unique_ptr<GDesktopAppInfo, Release> info(
        g_desktop_app_info_new_from_keyfile(file.get()));
    if (!info)
        return "The desktop entry names no program that is installed.";
    // GIO's own variable for the entry's path, by which Veldmark finds a running copy. GIO sets it
    // only for an entry that it read from a file itself.
    const std::unique_ptr<GAppLaunchContext, Release> context(g_app_launch_context_new());
    g_app_launch_context_setenv(context.get(), "GIO_LAUNCHED_DESKTOP_FILE", path.c_str());
    if (!g_app_info_launch(G_APP_INFO(info.get()), nullptr, context.get(), &error))
        return sentence("The application could not be started", error);
    return {};
}

std::string startProgram(const std::string &path)
{
    struct stat status { };
    if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)
        || access(path.c_str(), X_OK) != 0)
        return "There is no such application or program.";
    std::string program = path;
    char *words[] = {program.data(), nullptr};
    GError *error = nullptr;
    if (!g_spawn_async(nullptr, words, nullptr, G_SPAWN_CHILD_INHERITS_STDIN, nullptr, nullptr,
                       nullptr, &error))
        return sentence("The program could not be started", error);
    return {};
}

} // namespace

std::string startApplication(const std::string &path)
{
    const bool isEntry = path.size() > entrySuffix.size()
        && path.compare(path.size() - entrySuffix.size(), entrySuffix.size(), entrySuffix) == 0;
    return isEntry ? startEntry(path) : startProgram(path);
}

} // namespace veldmark
