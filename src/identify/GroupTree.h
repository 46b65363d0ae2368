#pragma once

#include "identify/GroupRegister.h"
#include "plain/Descriptor.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

// Watches the control groups of users' desktops and logins with inotify. Reads only names and
// numbers.
namespace veldmark {

class GroupTree {
public:
    // `root` is the mount point of the version 2 tree.
    explicit GroupTree(std::string root);

    // Readable when there are events; -1 when the kernel gives no watch.
    [[nodiscard]] int descriptor() const { return m_inotify.number(); }

    // Returns all present groups and watches for new ones.
    [[nodiscard]] std::vector<Group> scan();

    struct Event {
        bool came = false;
        Group group; // without an id when the group was removed
    };
    // The events since the last call, without waiting. Absent when the kernel has lost some: the
    // caller then calls scan().
    [[nodiscard]] std::optional<std::vector<Event>> read();

private:
    enum class Level { root, users, user, manager, applications };
    struct Folder {
        Level level = Level::root;
        uid_t user = 0;
        std::string path;
    };
    void visit(Level level, uid_t user, const std::string &path, std::vector<Group> &found);
    void meet(const Folder &folder, const std::string &name, std::vector<Group> &found);
    [[nodiscard]] std::optional<Group> groupAt(const Folder &folder, const std::string &name) const;

    std::string m_root;
    Descriptor m_inotify;
    std::map<int, Folder> m_folders;
};

} // namespace veldmark
