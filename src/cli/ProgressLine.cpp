#include "cli/ProgressLine.h"

#include <algorithm>
#include <cmath>

namespace veldmark {

namespace {
constexpr int barCells = 24;
constexpr int besideDetail = barCells + 10; // brackets, blanks, "100%"
} // namespace

QString ProgressLine::update(double progress, const QString &detail)
{
    const double bounded = std::clamp(progress, 0.0, 1.0);
    const int percent = static_cast<int>(std::lround(bounded * 100));
    const QString line = QStringLiteral("%1%  %2").arg(percent, 3).arg(detail);
    if (line == m_last)
        return {};
    m_last = line;
    if (!m_terminal)
        return line + u'\n';
    const int full = static_cast<int>(std::lround(bounded * barCells));
    const QString bar = QString(full, QChar(0x2588)) + QString(barCells - full, QChar(0x2591));
    m_open = true;
    return QStringLiteral("\r\x1b[K%1 %2%  %3")
        .arg(bar)
        .arg(percent, 3)
        .arg(detail.left(std::max(0, m_columns - besideDetail)));
}

QString ProgressLine::update(const QString &text)
{
    if (text == m_last || text.isEmpty())
        return {};
    m_last = text;
    if (!m_terminal)
        return text + u'\n';
    m_open = true;
    return QStringLiteral("\r\x1b[K") + text.left(std::max(0, m_columns - 1));
}

QString ProgressLine::finish()
{
    m_last.clear();
    return std::exchange(m_open, false) ? QStringLiteral("\n") : QString();
}

} // namespace veldmark
