#pragma once

#include "doctor/Finding.h"
#include "doctor/Machine.h"

// The examinations, one function per subject. They read only files below the root folder of
// `machine`.
namespace veldmark::Doctor {

Findings torFindings(const Machine &machine);  // Programs.cpp: tor, its version, its approval
Findings exitFindings(const Machine &machine); // Settings' exit country; nothing when it is valid
Findings programFindings(const Machine &machine); // the other programs that the helper calls
Findings helperFindings(const Machine &machine);  // the helper: present, owned by root, current
Findings bridgeFindings(const Machine &machine);  // the chosen bridges and the programs for them
Findings portFindings(const Machine &machine);    // Ports.cpp: programs on the ports that Tor needs
// Firewalls.cpp: nftables, other firewalls, control groups
Findings firewallFindings(const Machine &machine);
Findings passwordFindings(const Machine &machine); // Password.cpp: polkit and an agent, sudo
Findings clockFindings(const Machine &machine);    // Clocks.cpp
Findings lookupFindings(const Machine &machine);   // Session.cpp: the manager of DNS
Findings sessionFindings(const Machine &machine);  // leftovers of an earlier session

// All findings, in the order of the report.
Findings all(const Machine &machine);

} // namespace veldmark::Doctor
