#pragma once

#include "doctor/Finding.h"
#include "doctor/Machine.h"

// What is looked at, one function for each thing. They read files below the machine's root and
// nothing else.
namespace veldmark::Doctor {

Findings torFindings(const Machine &machine);     // Programs.cpp: tor, its version
Findings programFindings(const Machine &machine); // what else the helper calls
Findings helperFindings(const Machine &machine);  // the helper: there, root's, up to date
Findings bridgeFindings(const Machine &machine);  // the chosen bridges and the programs for them
Findings portFindings(const Machine &machine);    // Ports.cpp: who holds the ports that Tor needs
// Firewalls.cpp: nftables, other firewalls, control groups
Findings firewallFindings(const Machine &machine);
Findings passwordFindings(const Machine &machine); // Password.cpp: polkit and an agent, sudo
Findings clockFindings(const Machine &machine);    // Clocks.cpp
Findings lookupFindings(const Machine &machine);   // Session.cpp: who manages DNS
Findings sessionFindings(const Machine &machine);  // leftovers of an earlier session

// All of them, in the order in which they are shown.
Findings all(const Machine &machine);

} // namespace veldmark::Doctor
