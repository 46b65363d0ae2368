#pragma once

#include <QStringList>

// Replaces the system's resolver in a program that links this file's source: getaddrinfo() finds
// nothing, sends nothing, and records its hosts. So no test ever sends a DNS lookup.
namespace veldmark::NameLookups {

// Every host looked up since clear(), in order. Any thread.
QStringList hosts();
void clear();

} // namespace veldmark::NameLookups
