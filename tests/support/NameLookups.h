#pragma once

#include <QStringList>

// A program that links this file's source has it in place of the system's resolver: getaddrinfo()
// finds nothing, asks nobody, and keeps what it was asked. So no test ever sends a look-up out.
namespace veldmark::NameLookups {

// Every host asked for since clear(), in order. Any thread.
QStringList hosts();
void clear();

} // namespace veldmark::NameLookups
