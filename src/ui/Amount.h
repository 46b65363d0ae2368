#pragma once

#include <QString>

// Amounts of data as people read them: decimal units, one unit for all the numbers of a row.
namespace veldmark::Amount {

enum class Unit { bytes, kilobytes, megabytes, gigabytes, terabytes };

// The largest unit in which `bytes` is at least one.
Unit unitFor(quint64 bytes);
// "1.4 MB" in the user's locale; one decimal place above bytes.
QString text(quint64 bytes, Unit unit);

} // namespace veldmark::Amount
