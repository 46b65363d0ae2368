#include "identify/GroupRegister.h"

#include "identify/GroupName.h"

#include <set>
#include <tuple>

namespace veldmark {

namespace {

MapChange::Map mapOf(Group::Kind kind)
{
    return kind == Group::Kind::session ? MapChange::Map::sessions : MapChange::Map::applications;
}

MapChange change(MapChange::Map map, MapChange::Action action, std::uint64_t group,
                 std::uint32_t mark)
{
    MapChange made;
    made.map = map;
    made.action = action;
    made.group = group;
    made.mark = mark;
    return made;
}

} // namespace

using Map = MapChange::Map;
using Action = MapChange::Action;

GroupRegister::GroupRegister(std::uint32_t start) : m_next(start % addressCount) { }

std::uint32_t GroupRegister::nextAddress()
{
    for (;;) {
        const std::uint32_t address = firstAddress + m_next;
        m_next = (m_next + 1) % addressCount;
        if (m_addresses.count(address) == 0)
            return address;
    }
}

std::size_t GroupRegister::share(std::size_t most, std::size_t inAll)
{
    return inAll < crowd ? most : inAll < mostInAll ? shareInACrowd : 0;
}

GroupRegister::Entry *GroupRegister::entryFor(const Key &key, MapChanges &changes)
{
    if (const auto found = m_entries.find(key); found != m_entries.end())
        return &found->second;
    std::size_t many = 0;
    auto oldest = m_entries.end();
    for (auto it = m_entries.lower_bound({key.first, std::string()});
         it != m_entries.end() && it->first.first == key.first; ++it) {
        ++many;
        if (it->second.groups == 0
            && (oldest == m_entries.end() || it->second.lastUse < oldest->second.lastUse))
            oldest = it;
    }
    if (many >= share(identitiesPerUser, m_entries.size())) {
        if (oldest == m_entries.end())
            return nullptr;
        changes.push_back(change(Map::addresses, Action::remove, 0, oldest->second.address));
        m_addresses.erase(oldest->second.address);
        m_entries.erase(oldest);
    }
    Entry &entry = m_entries[key];
    entry.address = nextAddress();
    m_addresses[entry.address] = key;
    changes.push_back(change(Map::addresses, Action::add, 0, entry.address));
    return &entry;
}

void GroupRegister::drop(std::map<Place, KnownGroup>::iterator known, MapChanges &changes)
{
    Entry &entry = m_entries[known->second.key];
    changes.push_back(
        change(mapOf(std::get<0>(known->first)), Action::remove, known->second.id, entry.address));
    --entry.groups;
    entry.lastUse = ++m_uses;
    --m_groupCounts[std::get<1>(known->first)];
    m_groups.erase(known);
}

void GroupRegister::add(const Group &group, MapChanges &changes)
{
    const std::string application = group.kind == Group::Kind::session ? loginSessionOf(group.name)
                                                                       : applicationOf(group.name);
    if (application.empty())
        return;
    if (const auto known = m_groups.find(group.place()); known != m_groups.end()) {
        if (known->second.id == group.id)
            return;
        drop(known, changes);
    }
    if (m_groupCounts[group.user] >= share(groupsPerUser, m_groups.size()))
        return;
    const Key key(group.user, application);
    Entry *entry = entryFor(key, changes);
    if (!entry)
        return;
    ++entry->groups;
    ++m_groupCounts[group.user];
    m_groups[group.place()] = {group.id, key};
    changes.push_back(change(mapOf(group.kind), Action::add, group.id, entry->address));
}

void GroupRegister::remove(const Group &group, MapChanges &changes)
{
    if (const auto known = m_groups.find(group.place()); known != m_groups.end())
        drop(known, changes);
}

void GroupRegister::replace(const std::vector<Group> &groups, MapChanges &changes)
{
    std::set<Place> there;
    for (const Group &group : groups)
        there.insert(group.place());
    for (auto it = m_groups.begin(); it != m_groups.end();) {
        const auto known = it++;
        if (there.count(known->first) == 0)
            drop(known, changes);
    }
    for (const Group &group : groups)
        add(group, changes);
}

bool GroupRegister::renew(uid_t user, const std::string &application, MapChanges &changes)
{
    const Key key(user, application);
    const auto found = m_entries.find(key);
    if (found == m_entries.end())
        return false;
    Entry &entry = found->second;
    const std::uint32_t former = entry.address;
    entry.address = nextAddress();
    m_addresses[entry.address] = key;
    changes.push_back(change(Map::addresses, Action::add, 0, entry.address));
    for (const auto &[place, known] : m_groups) {
        if (known.key != key)
            continue;
        changes.push_back(change(mapOf(std::get<0>(place)), Action::remove, known.id, former));
        changes.push_back(change(mapOf(std::get<0>(place)), Action::add, known.id, entry.address));
    }
    changes.push_back(change(Map::addresses, Action::remove, 0, former));
    m_addresses.erase(former);
    return true;
}

MapChanges GroupRegister::everything() const
{
    MapChanges changes;
    for (const auto &[address, key] : m_addresses)
        changes.push_back(change(Map::addresses, Action::add, 0, address));
    for (const auto &[place, known] : m_groups)
        changes.push_back(change(mapOf(std::get<0>(place)), Action::add, known.id,
                                 m_entries.at(known.key).address));
    return changes;
}

std::vector<Identity> GroupRegister::identities() const
{
    std::vector<Identity> found;
    for (const auto &[key, entry] : m_entries) {
        if (entry.groups > 0)
            found.push_back({key.first, key.second, entry.address});
    }
    return found;
}

} // namespace veldmark
