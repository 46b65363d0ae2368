#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <sys/types.h>

// The address of each application, and the control groups of each application. No input or output:
// the changes for the firewall's maps are returned. Single-threaded.
namespace veldmark {

// A group of a desktop or a login session.
struct Group {
    enum class Kind { session, application };
    Kind kind = Kind::application;
    uid_t user = 0;
    std::string name;     // of its folder
    std::uint64_t id = 0; // the kernel's

    [[nodiscard]] auto place() const { return std::tuple(kind, user, name); }
};

// One element of a map: groups lead to marks, marks lead to addresses. A mark is the address as a
// number.
struct MapChange {
    enum class Map { sessions, applications, addresses };
    enum class Action { add, remove };
    Map map = Map::addresses;
    Action action = Action::add;
    std::uint64_t group = 0;
    std::uint32_t mark = 0;
};
using MapChanges = std::vector<MapChange>;

struct Identity {
    uid_t user = 0;
    std::string application;
    std::uint32_t address = 0;
};

class GroupRegister {
public:
    // Limits per user. Groups and applications beyond them share the account's address.
    static constexpr std::size_t groupsPerUser = 2000;
    static constexpr std::size_t identitiesPerUser = 1000;
    // The firewall's maps have 65,536 places each. From `crowd` entries of all users together, each
    // user gets at most `shareInACrowd`, so that several users can't fill the places that others
    // need.
    static constexpr std::size_t crowd = 30000;
    static constexpr std::size_t shareInACrowd = 100;
    static constexpr std::size_t mostInAll = 60000; // account addresses need places too

    // Addresses are given out in order, from firstAddress + start. No address repeats before all
    // were used: circuits of an ended application may live on for minutes.
    static constexpr std::uint32_t firstAddress = 0x7f410000; // 127.65.0.0
    static constexpr std::uint32_t addressCount = 0x003f0000; // up to 127.127.255.255
    explicit GroupRegister(std::uint32_t start);

    // Adds a new group. A known group of the same place with another id has been removed unnoticed.
    void add(const Group &group, MapChanges &changes);
    // Removes a group; its id is not needed.
    void remove(const Group &group, MapChanges &changes);
    // Replaces all known groups by `groups`.
    void replace(const std::vector<Group> &groups, MapChanges &changes);
    // Gives the application another address, or none when it has no group. True when it had one.
    bool renew(uid_t user, const std::string &application, MapChanges &changes);
    // The changes that fill empty maps.
    [[nodiscard]] MapChanges everything() const;
    // The identities with at least one group, by user and id.
    [[nodiscard]] std::vector<Identity> identities() const;

private:
    using Place = std::tuple<Group::Kind, uid_t, std::string>;
    using Key = std::pair<uid_t, std::string>;
    struct KnownGroup {
        std::uint64_t id = 0;
        Key key;
    };
    struct Entry {
        std::uint32_t address = 0;
        std::size_t groups = 0;
        std::uint64_t lastUse = 0;
    };
    // The number of entries one user may have: `most`, or less when all users together have many
    // (`inAll`).
    static std::size_t share(std::size_t most, std::size_t inAll);
    std::uint32_t nextAddress();
    Entry *entryFor(const Key &key, MapChanges &changes);
    void drop(std::map<Place, KnownGroup>::iterator known, MapChanges &changes);

    std::map<Place, KnownGroup> m_groups;
    std::map<Key, Entry> m_entries;
    std::map<std::uint32_t, Key> m_addresses;
    std::map<uid_t, std::size_t> m_groupCounts;
    std::uint32_t m_next;
    std::uint64_t m_uses = 0;
};

} // namespace veldmark
