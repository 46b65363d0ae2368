#pragma once

#include "identify/Descriptor.h"
#include "identify/GroupRegister.h"

#include <cstdint>
#include <string>

// Our table's maps in the kernel, changed over netlink: a program of nft's for each group would
// cost a hundred times as much.
namespace veldmark {

class FirewallMaps {
public:
    // `table` is one of the family inet. Needs the right to change the firewall, here and at each
    // change.
    explicit FirewallMaps(std::string table);

    // All of them in one transaction, or in several where they are very many. False when the kernel
    // refuses: then the maps are not as they were left, and the table has to be made anew.
    [[nodiscard]] bool apply(const MapChanges &changes);
    // Gone afterwards; it may have been gone before.
    void removeTable();

    // Readable when somebody has changed some rules; -1 when the kernel does not tell.
    [[nodiscard]] int descriptor() const { return m_notices.number(); }
    // Whether anything of the table has been taken away since the last time, by anybody but us.
    [[nodiscard]] bool takeLoss();

private:
    [[nodiscard]] bool send(const std::string &messages);

    std::string m_table;
    Descriptor m_commands;
    Descriptor m_notices;
    std::uint32_t m_port = 0;
};

} // namespace veldmark
