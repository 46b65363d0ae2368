#include "ui/Amount.h"

#include <QCoreApplication>
#include <QLocale>

#include <array>
#include <cmath>

namespace veldmark::Amount {

Unit unitFor(quint64 bytes)
{
    int unit = 0;
    for (quint64 rest = bytes; rest >= 1000 && unit < static_cast<int>(Unit::terabytes);
         rest /= 1000)
        ++unit;
    return static_cast<Unit>(unit);
}

QString text(quint64 bytes, Unit unit)
{
    static constexpr std::array names{"B", "kB", "MB", "GB", "TB"};
    const auto index = static_cast<size_t>(unit);
    const double value = static_cast<double>(bytes) / std::pow(1000.0, static_cast<double>(index));
    return QLocale().toString(value, 'f', unit == Unit::bytes ? 0 : 1) + QChar(0x00a0)
        + QLatin1String(names[index]);
}

} // namespace veldmark::Amount
