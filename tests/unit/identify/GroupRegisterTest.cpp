#include "identify/GroupRegister.h"

#include "support/TestProgram.h"

#include <QTest>

#include <map>
#include <set>

using namespace veldmark;
using Map = MapChange::Map;

namespace {

// A stand-in of the firewall's maps that refuses what the kernel refuses.
struct Maps {
    std::map<std::pair<Map, std::uint64_t>, std::uint32_t> marks;
    std::set<std::uint32_t> addresses;
    bool refused = false;

    void take(const MapChanges &changes)
    {
        for (const MapChange &change : changes) {
            const bool adds = change.action == MapChange::Action::add;
            if (change.map == Map::addresses)
                refused = refused
                    || (adds ? !addresses.insert(change.mark).second
                             : addresses.erase(change.mark) == 0);
            else if (adds)
                refused = refused
                    || !marks.emplace(std::pair(change.map, change.group), change.mark).second;
            else
                refused = refused || marks.erase({change.map, change.group}) == 0;
        }
        for (const auto &[group, mark] : marks)
            refused = refused || addresses.count(mark) == 0;
    }
    std::uint32_t of(std::uint64_t group) const
    {
        const auto found = marks.find({Map::applications, group});
        return found == marks.end() ? 0 : found->second;
    }
};

Group group(const std::string &name, std::uint64_t id, uid_t user = 1000)
{
    return {Group::Kind::application, user, name, id};
}

} // namespace

class GroupRegisterTest : public QObject {
    Q_OBJECT

    Maps m_maps;

    template <typename Change> void with(Change change)
    {
        MapChanges changes;
        change(changes);
        m_maps.take(changes);
        QVERIFY(!m_maps.refused);
    }

private Q_SLOTS:
    void init() { m_maps = Maps(); }

    void twoWindowsShareAndTwoProgramsDoNot()
    {
        GroupRegister known(0);
        with([&](MapChanges &c) {
            known.add(group("app-gnome-web-1.scope", 1), c);
            known.add(group("app-gnome-web-2.scope", 2), c);
            known.add(group("app-gnome-mail-3.scope", 3), c);
            known.add(group("app-gnome-web-1.scope", 4, 1001), c);
            known.add({Group::Kind::session, 1000, "session-2.scope", 5}, c);
        });
        QCOMPARE(m_maps.of(1), m_maps.of(2));
        QCOMPARE((std::set{m_maps.of(1), m_maps.of(3), m_maps.of(4)}.size()), 3U);
        QVERIFY(m_maps.marks.count({Map::sessions, 5}) == 1);
        QCOMPARE(m_maps.addresses.size(), 4U);
    }

    void anApplicationThatComesBackHasItsAddress()
    {
        GroupRegister known(0);
        with([&](MapChanges &c) { known.add(group("app-web-1.scope", 1), c); });
        const auto address = m_maps.of(1);
        with([&](MapChanges &c) { known.remove(group("app-web-1.scope", 0), c); });
        QCOMPARE(known.identities().size(), 0U);
        with([&](MapChanges &c) { known.add(group("app-web-2.scope", 2), c); });
        QCOMPARE(m_maps.of(2), address);
        QCOMPARE(m_maps.of(1), 0U);
    }

    void aNewAddressIsForOneApplicationAndNeverThatOfAnother()
    {
        GroupRegister known(GroupRegister::addressCount - 1);
        with([&](MapChanges &c) {
            known.add(group("app-web-1.scope", 1), c);
            known.add(group("app-web-2.scope", 2), c);
            known.add(group("app-mail-3.scope", 3), c);
        });
        const auto web = m_maps.of(1);
        const auto mail = m_maps.of(3);
        bool renewed = false;
        with([&](MapChanges &c) { renewed = known.renew(1000, "web", c); });
        QVERIFY(renewed);
        QVERIFY(m_maps.of(1) != web && m_maps.of(1) != mail);
        QCOMPARE(m_maps.of(2), m_maps.of(1));
        QCOMPARE(m_maps.of(3), mail);
        QCOMPARE(m_maps.addresses.size(), 2U);
        for (const auto &[user, name] :
             {std::pair<uid_t, std::string>(1001, "web"), {1000, "nothing"}, {1000, ""}}) {
            with([&](MapChanges &c) { renewed = known.renew(user, name, c); });
            QVERIFY(!renewed);
        }
    }

    void whatOneUserMakesTakesNothingFromOthers()
    {
        GroupRegister known(7);
        with([&](MapChanges &c) {
            for (std::uint64_t n = 1; n <= 10000; ++n)
                known.add(group("app-x" + std::to_string(n) + "-1.scope", n), c);
            known.add(group("app-web-1.scope", 20000, 1001), c);
        });
        QCOMPARE(m_maps.marks.size(), GroupRegister::identitiesPerUser + 1);
        QVERIFY(m_maps.of(20000) != 0);
        // Removed groups make room, the one that was removed first comes first.
        with([&](MapChanges &c) {
            known.remove(group("app-x7-1.scope", 0), c);
            known.remove(group("app-x5-1.scope", 0), c);
            known.add(group("app-late-1.scope", 30000), c);
            known.add(group("app-x5-2.scope", 30001), c);
        });
        QVERIFY(m_maps.of(30000) != 0 && m_maps.of(30001) != 0);
        QCOMPARE(m_maps.addresses.size(), GroupRegister::identitiesPerUser + 1);
    }

    void groupsOfOneApplicationHaveAnEndToo()
    {
        GroupRegister known(7);
        with([&](MapChanges &c) {
            for (std::uint64_t n = 1; n <= 5000; ++n)
                known.add(group("app-web-" + std::to_string(n) + ".scope", n), c);
        });
        QCOMPARE(m_maps.marks.size(), GroupRegister::groupsPerUser);
        with([&](MapChanges &c) {
            for (std::uint64_t n = 1; n <= 5000; ++n)
                known.remove(group("app-web-" + std::to_string(n) + ".scope", 0), c);
            known.add(group("app-web-9.scope", 9999), c);
        });
        QCOMPARE(m_maps.marks.size(), 1U);
    }

    void severalUsersFillNothingThatOthersNeed()
    {
        GroupRegister known(7);
        std::uint64_t id = 0;
        with([&](MapChanges &c) {
            for (uid_t user = 1000; user < 1060; ++user) {
                for (int n = 0; n < 1200; ++n)
                    known.add(group("app-x" + std::to_string(n) + "-1.scope", ++id, user), c);
            }
        });
        QVERIFY(m_maps.marks.size() > GroupRegister::crowd); // they are many
        with([&](MapChanges &c) { known.add(group("app-web-1.scope", 900000, 2000), c); });
        QVERIFY(m_maps.of(900000) != 0);
        with([&](MapChanges &c) {
            for (uid_t user = 3000; user < 4000; ++user) {
                for (int n = 0; n < 200; ++n)
                    known.add(group("app-y" + std::to_string(n) + "-1.scope", ++id, user), c);
            }
        });
        constexpr std::size_t places = 65536; // the capacity of each map
        QVERIFY(m_maps.marks.size() < places && m_maps.addresses.size() < places);
    }

    void whatWasMissedIsMadeUpFor()
    {
        GroupRegister known(0);
        with([&](MapChanges &c) {
            known.add(group("app-web-1.scope", 1), c);
            known.add(group("app-mail-1.scope", 2), c);
            known.add(group("app-web-1.scope", 1), c);
        });
        // One group was removed and added again, one was removed, one was added.
        with([&](MapChanges &c) {
            known.replace({group("app-web-1.scope", 11), group("app-chat-1.scope", 12)}, c);
        });
        QVERIFY(m_maps.of(11) != 0 && m_maps.of(12) != 0 && m_maps.of(1) == 0 && m_maps.of(2) == 0);
        Maps anew;
        anew.take(known.everything());
        QVERIFY(!anew.refused && anew.marks == m_maps.marks && anew.addresses == m_maps.addresses);
    }

    void namesThatAreNoUnitsAreLeftOut()
    {
        GroupRegister known(0);
        with([&](MapChanges &c) {
            known.add(group("cgroup.stat", 1), c);
            known.add({Group::Kind::session, 1000, "app-web-1.scope", 2}, c);
            known.remove(group("app-never-1.scope", 0), c);
        });
        QVERIFY(m_maps.marks.empty() && m_maps.addresses.empty());
    }
};

VELDMARK_TEST(GroupRegisterTest)
#include "GroupRegisterTest.moc"
