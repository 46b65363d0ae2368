#include "identify/GroupTree.h"

#include "identify/GroupName.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <memory>

#include <dirent.h>
#include <sys/inotify.h>
#include <sys/stat.h>

namespace veldmark {

namespace {

constexpr std::size_t roundLimit = 4096; // events read at once

struct CloseFolder {
    void operator()(DIR *folder) const { closedir(folder); }
};

// The number between `start` and `end` in a name such as "user-1000.slice".
std::optional<uid_t> userOf(std::string_view name, std::string_view start, std::string_view end)
{
    if (name.size() <= start.size() + end.size() || name.substr(0, start.size()) != start
        || name.substr(name.size() - end.size()) != end)
        return std::nullopt;
    const std::string_view digits = name.substr(start.size(),
                                                name.size() - start.size() - end.size());
    if (digits.size() > 10 || (digits.size() > 1 && digits.front() == '0'))
        return std::nullopt;
    std::uint64_t number = 0;
    for (const char c : digits) {
        if (c < '0' || c > '9')
            return std::nullopt;
        number = number * 10 + static_cast<std::uint64_t>(c - '0');
    }
    if (number >= 0xffffffffU)
        return std::nullopt;
    return static_cast<uid_t>(number);
}

} // namespace

GroupTree::GroupTree(std::string root) : m_root(std::move(root)) { }

std::vector<Group> GroupTree::scan()
{
    m_folders.clear();
    m_inotify = Descriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    std::vector<Group> found;
    visit(Level::root, 0, m_root, found);
    return found;
}

// Adds the watch before it reads the folder: a group created in between is seen twice, not missed.
void GroupTree::visit(Level level, uid_t user, const std::string &path, std::vector<Group> &found)
{
    const int watch = inotify_add_watch(m_inotify.number(), path.c_str(),
                                        IN_CREATE | IN_DELETE | IN_ONLYDIR | IN_DONT_FOLLOW);
    if (watch < 0)
        return;
    const Folder folder{level, user, path};
    m_folders[watch] = folder;
    const std::unique_ptr<DIR, CloseFolder> reading(opendir(path.c_str()));
    while (const dirent *entry = reading ? readdir(reading.get()) : nullptr) {
        if (entry->d_type == DT_DIR && entry->d_name[0] != '.')
            meet(folder, entry->d_name, found);
    }
}

std::optional<Group> GroupTree::groupAt(const Folder &folder, const std::string &name) const
{
    Group group;
    group.user = folder.user;
    group.name = name;
    if (folder.level == Level::user && !loginSessionOf(name).empty())
        group.kind = Group::Kind::session;
    else if (folder.level == Level::applications && !applicationOf(name).empty())
        group.kind = Group::Kind::application;
    else
        return std::nullopt;
    return group;
}

void GroupTree::meet(const Folder &folder, const std::string &name, std::vector<Group> &found)
{
    const std::string path = folder.path + "/" + name;
    if (folder.level == Level::root && name == "user.slice") {
        visit(Level::users, 0, path, found);
    } else if (folder.level == Level::users) {
        if (const auto user = userOf(name, "user-", ".slice"))
            visit(Level::user, *user, path, found);
    } else if (folder.level == Level::user && userOf(name, "user@", ".service") == folder.user) {
        visit(Level::manager, folder.user, path, found);
    } else if (folder.level == Level::manager && name == "app.slice") {
        visit(Level::applications, folder.user, path, found);
    } else if (auto group = groupAt(folder, name)) {
        struct stat status { };
        // The firewall compares the inode number.
        if (lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode)) {
            group->id = status.st_ino;
            found.push_back(*group);
        }
    }
}

std::optional<std::vector<GroupTree::Event>> GroupTree::read()
{
    std::vector<Event> events;
    alignas(inotify_event) std::array<char, 65536> buffer;
    while (events.size() < roundLimit) {
        const ssize_t size = ::read(m_inotify.number(), buffer.data(), buffer.size());
        if (size <= 0)
            break;
        for (const char *at = buffer.data(); at < buffer.data() + size;) {
            inotify_event event;
            std::memcpy(&event, at, sizeof event);
            const char *name = at + sizeof event;
            at += sizeof event + event.len;
            if ((event.mask & IN_Q_OVERFLOW) != 0)
                return std::nullopt;
            const auto place = m_folders.find(event.wd);
            if (place == m_folders.end())
                continue;
            if ((event.mask & IN_IGNORED) != 0) {
                m_folders.erase(place);
                continue;
            }
            if ((event.mask & IN_ISDIR) == 0 || event.len == 0)
                continue;
            const Folder folder = place->second;
            if ((event.mask & IN_DELETE) != 0) {
                if (const auto group = groupAt(folder, name))
                    events.push_back({false, *group});
                continue;
            }
            std::vector<Group> found;
            meet(folder, name, found);
            for (const Group &group : found)
                events.push_back({true, group});
        }
    }
    return events;
}

} // namespace veldmark
