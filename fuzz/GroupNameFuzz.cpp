// Names of control groups, which any user can make, and the firewall's maps for them.
#include "fuzz/Require.h"

#include "identify/GroupName.h"
#include "identify/GroupRegister.h"

#include <map>
#include <string>

using namespace veldmark;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // Lines: "+" or "-" and a name, "!" and an application to renew.
    std::string_view rest(reinterpret_cast<const char *>(data), size);
    GroupRegister known(size == 0 ? 0 : data[0]);
    std::map<std::uint64_t, std::uint32_t> marks;
    std::uint64_t id = 0;
    MapChanges changes;
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        const std::string_view line = rest.substr(0, end);
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        const std::string name(line.substr(line.empty() ? 0 : 1));
        const std::string application = applicationOf(name);
        for (const char c : application + loginSessionOf(name))
            REQUIRE(c > ' ' && c < 0x7f);
        REQUIRE(application.size() <= 4 * name.size() + 3);
        REQUIRE(application == applicationOf(name));
        if (line.substr(0, 1) == "+")
            known.add({Group::Kind::application, 1, name, ++id}, changes);
        else if (line.substr(0, 1) == "-")
            known.remove({Group::Kind::application, 1, name, 0}, changes);
        else
            known.renew(1, name, changes);
    }
    for (const MapChange &change : changes) {
        if (change.map == MapChange::Map::addresses)
            continue;
        if (change.action == MapChange::Action::add)
            REQUIRE(marks.emplace(change.group, change.mark).second);
        else
            REQUIRE(marks.erase(change.group) == 1);
    }
    std::size_t groups = 0;
    for (const MapChange &change : known.everything())
        groups += change.map != MapChange::Map::addresses ? 1 : 0;
    REQUIRE(groups == marks.size());
    return 0;
}
