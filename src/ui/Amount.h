#pragma once

#include <QString>

// Formats amounts of data for the user: decimal units, the same unit for all numbers of a row.
namespace veldmark::Amount {

enum class Unit { bytes, kilobytes, megabytes, gigabytes, terabytes };

// The largest unit in which `bytes` is at least one.
Unit unitFor(quint64 bytes);
// "1.4 MB" in the user's locale; one decimal place for units above bytes.
QString text(quint64 bytes, Unit unit);

} // namespace veldmark::Amount
