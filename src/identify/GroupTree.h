#pragma once

#include "identify/Descriptor.h"
#include "identify/GroupRegister.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

// The control groups of users' desktops and logins, watched by inotify. Reads names and numbers,
// nothing else.
namespace veldmark {

class GroupTree {
public:
    // `root` is where the tree of version 2 is mounted.
    explicit GroupTree(std::string root);

    // Readable when something has happened; -1 when the kernel gives no watch.
    [[nodiscard]] int descriptor() const { return m_inotify.number(); }

    // All that there are now, and watches for those to come.
    [[nodiscard]] std::vector<Group> scan();

    struct Event {
        bool came = false;
        Group group; // without an id when it has gone
    };
    // What has happened since, without waiting; nothing when more has than the kernel could keep:
    // then scan.
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
