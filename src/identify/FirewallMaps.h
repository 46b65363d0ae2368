#pragma once

#include "identify/GroupRegister.h"
#include "plain/Descriptor.h"

#include <cstdint>
#include <string>

// The maps of the identities' table in the kernel, changed over netlink: one run of nft for each
// group would cost a hundred times as much.
namespace veldmark {

class FirewallMaps {
public:
    // `table` is of the family inet. The constructor and each change need the right to change the
    // firewall.
    explicit FirewallMaps(std::string table);

    // Applies all changes in one transaction, or in several when they are very many. False when the
    // kernel refuses: the maps are then unknown, and the table must be loaded again.
    [[nodiscard]] bool apply(const MapChanges &changes);
    // Removes the table; it need not exist.
    void removeTable();

    // Readable when a process has changed rules; -1 when the kernel does not report it.
    [[nodiscard]] int descriptor() const { return m_notices.number(); }
    // Whether another process has removed a part of the table since the last call.
    [[nodiscard]] bool takeLoss();

private:
    [[nodiscard]] bool send(const std::string &messages);

    std::string m_table;
    Descriptor m_commands;
    Descriptor m_notices;
    std::uint32_t m_port = 0;
};

} // namespace veldmark
