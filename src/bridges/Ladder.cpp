#include "bridges/Ladder.h"

#include "base/ProgramFile.h"
#include "bridges/BridgeLines.h"
#include "bridges/BridgePlan.h"

#include <QSet>

#include <algorithm>

using namespace std::chrono_literals;

namespace veldmark {

namespace {

// The transports that go to the address in the line.
const QStringList addressed = {QStringLiteral("obfs4"), QStringLiteral("obfs3"),
                               QStringLiteral("scramblesuit")};
const QString bridgeOption = QStringLiteral("--bridge");
// The longest command that passes the filter before the control port (CommandFilter.h), less its
// start.
constexpr qsizetype longestCommand = 16384 - 64;

// Whether Tor takes the line, and the program for it is there now; `found` may be old.
bool canBeUsed(const QString &line, const PluggableTransports &found)
{
    const auto address = BridgeLines::address(line);
    if (!address || address->port == 0)
        return false;
    const auto arguments = bridgeArguments({line}, found);
    return arguments
        && (arguments->size() == 2 // no program is needed
            || isProgram(arguments->constLast()));
}

QStringList rungLines(BridgeChoice rung, const QString &customBridges,
                      const PluggableTransports &found)
{
    if (rung == BridgeChoice::custom)
        return BridgeLines::parse(customBridges).lines;
    return found.builtinLines(rung).value_or(QStringList());
}

} // namespace

QString rawValue(Climb climb)
{
    switch (climb) {
    case Climb::ask:
        return QStringLiteral("ask");
    case Climb::always:
        return QStringLiteral("always");
    case Climb::never:
        return QStringLiteral("never");
    }
    Q_UNREACHABLE();
}

std::optional<Climb> climbFromRawValue(QStringView raw)
{
    for (const Climb climb : allClimbs) {
        if (raw == rawValue(climb))
            return climb;
    }
    return std::nullopt;
}

Text Ladder::name(BridgeChoice rung)
{
    switch (rung) {
    case BridgeChoice::off:
        return Text::tr("Direct");
    case BridgeChoice::custom:
        return Text::tr("Your bridges");
    case BridgeChoice::obfs4:
    case BridgeChoice::snowflake:
    case BridgeChoice::meek:
        break;
    }
    return displayName(rung);
}

QString Ladder::rawName(BridgeChoice rung)
{
    return rung == BridgeChoice::off ? QStringLiteral("direct") : rawValue(rung);
}

Text Ladder::line(const LadderStep &step)
{
    const Text told = Text::tr("%1: %2").arg(name(step.rung), step.result);
    return step.seconds ? Text::joined({told, Text::tr("(%1 s)").arg(*step.seconds)}) : told;
}

std::vector<Rung> Ladder::rungs(BridgeChoice first, const QStringList &used,
                                const QString &customBridges, const PluggableTransports &found)
{
    std::vector<Rung> all;
    QSet<QString> taken(used.begin(), used.end());
    qsizetype room = BridgeLines::mostLines - used.size(); // the helper's limit
    for (const BridgeChoice rung :
         {BridgeChoice::custom, BridgeChoice::obfs4, BridgeChoice::snowflake, BridgeChoice::meek}) {
        if (rung == first)
            continue;
        QStringList lines;
        for (const QString &line : rungLines(rung, customBridges, found)) {
            if (lines.size() == std::min(mostTogether, room))
                break;
            if (taken.contains(line) || !canBeUsed(line, found)
                || command(lines + QStringList(line)).size() > longestCommand)
                continue;
            taken.insert(line);
            lines << line;
        }
        room -= lines.size();
        if (!lines.isEmpty())
            all.push_back({rung, lines});
    }
    return all;
}

bool Ladder::isConfined(const QStringList &lines)
{
    return !lines.isEmpty() && std::all_of(lines.begin(), lines.end(), [](const QString &line) {
        const auto transport = BridgeLines::transport(line);
        return !transport || addressed.contains(*transport);
    });
}

std::vector<Rung> Ladder::confined(std::vector<Rung> rungs)
{
    std::erase_if(rungs, [](const Rung &rung) { return !isConfined(rung.lines); });
    return rungs;
}

QStringList Ladder::words(const std::vector<Rung> &rungs, const PluggableTransports &found)
{
    QStringList lines;
    for (const Rung &rung : rungs)
        lines += rung.lines;
    QStringList words = bridgeArguments(lines, found).value_or(QStringList());
    std::replace(words.begin(), words.end(), bridgeOption, QStringLiteral("--reserve"));
    return words;
}

QString Ladder::command(const QStringList &lines)
{
    QString text = QStringLiteral("SETCONF UseBridges=1");
    for (const QString &line : lines)
        text += QStringLiteral(" Bridge=\"%1\"").arg(line);
    return text;
}

// A transport that meets its bridge through a front or a broker takes longer.
std::chrono::seconds Ladder::patience(const QStringList &lines)
{
    auto longest = 15s;
    for (const QString &line : lines) {
        const QString transport = BridgeLines::transport(line).value_or(QString());
        if (transport == QLatin1String("snowflake"))
            longest = std::max(longest, 30s);
        else if (transport == QLatin1String("meek_lite"))
            longest = std::max(longest, 25s);
    }
    return longest;
}

int Ladder::refusals(const QStringList &lines)
{
    constexpr int some = 3;
    return lines.isEmpty() ? some : static_cast<int>(std::min<qsizetype>(lines.size(), some));
}

RungWatch::Sign RungWatch::look(const Report &report, std::chrono::nanoseconds elapsed)
{
    if (!m_received)
        m_received = report.received;
    const qint64 grown = report.received - *m_received;
    const bool hasAdvanced = report.progress > m_best;
    if (hasAdvanced || (m_moved && grown >= slowBytes) || (m_isUnseen && grown >= answerBytes)) {
        m_best = std::max(m_best, report.progress);
        m_received = report.received;
        m_advanced = elapsed;
        if (m_best >= answered) {
            m_moved = elapsed;
            m_isUnseen = false;
        }
    }
    if (m_moved)
        return elapsed - *m_moved >= stalledPatience ? Sign::stalled : Sign::trying;
    if (report.isRefused && elapsed - m_advanced >= m_refusedPatience)
        return Sign::refused;
    return elapsed >= m_patience ? Sign::silent : Sign::trying;
}

} // namespace veldmark
