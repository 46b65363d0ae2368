#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <sys/types.h>

// Which application has which address, and which control groups are that application's. No input or
// output: what the firewall's maps have to learn comes back as changes. Single-threaded.
namespace veldmark {

// A group of the desktop's or of a login.
struct Group {
    enum class Kind { session, application };
    Kind kind = Kind::application;
    uid_t user = 0;
    std::string name;     // of its folder
    std::uint64_t id = 0; // the kernel's

    [[nodiscard]] auto place() const { return std::tuple(kind, user, name); }
};

// For one element of a map: groups lead to marks, marks lead to addresses. A mark is the address,
// as a number.
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
    // What one user can make us keep. Whoever has more shares the account's address with the rest.
    static constexpr std::size_t groupsPerUser = 2000;
    static constexpr std::size_t identitiesPerUser = 1000;
    // The firewall's maps have 65,536 places each. Where users together have filled so many, each
    // has this share at most: several can't fill what the others need.
    static constexpr std::size_t crowd = 30000;
    static constexpr std::size_t shareInACrowd = 100;
    static constexpr std::size_t mostInAll = 60000; // accounts have addresses as well

    // Addresses are given out one after the other, from firstAddress + start on, and no one twice
    // before all were used: circuits of an application that has gone may live on for minutes.
    static constexpr std::uint32_t firstAddress = 0x7f410000; // 127.65.0.0
    static constexpr std::uint32_t addressCount = 0x003f0000; // up to 127.127.255.255
    explicit GroupRegister(std::uint32_t start);

    // A group that has come. One of that place that is there already and has another id has been
    // missed going.
    void add(const Group &group, MapChanges &changes);
    // A group that has gone; its id is not needed.
    void remove(const Group &group, MapChanges &changes);
    // `groups` are all that there are.
    void replace(const std::vector<Group> &groups, MapChanges &changes);
    // Another address for that application, or none when no group of it is there. Whether it had
    // one.
    bool renew(uid_t user, const std::string &application, MapChanges &changes);
    // What has to be added to empty maps.
    [[nodiscard]] MapChanges everything() const;
    // Those of which a group is there, by user and id.
    [[nodiscard]] std::vector<Identity> identities() const;

private:
    using Place = std::tuple<Group::Kind, uid_t, std::string>;
    using Key = std::pair<uid_t, std::string>;
    struct Known {
        std::uint64_t id = 0;
        Key key;
    };
    struct Entry {
        std::uint32_t address = 0;
        std::size_t groups = 0;
        std::uint64_t lastUse = 0;
    };
    // How many of what there are `inAll` one user may have, who could have `most`.
    static std::size_t share(std::size_t most, std::size_t inAll);
    std::uint32_t nextAddress();
    Entry *entryFor(const Key &key, MapChanges &changes);
    void drop(std::map<Place, Known>::iterator known, MapChanges &changes);

    std::map<Place, Known> m_groups;
    std::map<Key, Entry> m_entries;
    std::map<std::uint32_t, Key> m_addresses;
    std::map<uid_t, std::size_t> m_groupCounts;
    std::uint32_t m_next;
    std::uint64_t m_uses = 0;
};

} // namespace veldmark
