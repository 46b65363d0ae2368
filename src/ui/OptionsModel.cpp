#include "ui/OptionsModel.h"

#include "bridges/BridgeLines.h"
#include "bridges/BridgePlan.h"
#include "bridges/BridgeText.h"
#include "ui/Wording.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace veldmark {

namespace {

// " (line 3)", " (lines 3, 5, 8, 9, 10, …)"
QString inLines(const std::vector<int> &numbers)
{
    constexpr qsizetype named = 5;
    QStringList list;
    for (const int number : numbers) {
        if (list.size() == named) {
            list << QStringLiteral("…");
            break;
        }
        list << QString::number(number);
    }
    const QString lines = list.join(QStringLiteral(", "));
    return u' '
        + (numbers.size() == 1 ? OptionsModel::tr("(line %1)").arg(lines)
                               : OptionsModel::tr("(lines %1)").arg(lines));
}

} // namespace

OptionsModel::OptionsModel(Session &session, QObject *parent)
    : QObject(parent),
      m_session(session),
      m_exits(session.exitChoices())
{
    QObject::connect(&session, &Session::changed, this, &OptionsModel::changed);
    QObject::connect(&session, &Session::launchFailed, this, [this](const QString &reason) {
        m_launchError = reason;
        Q_EMIT changed();
    });
}

bool OptionsModel::showsSession() const
{
    const ConnectionPhase phase = m_session.now().phase;
    return phase == ConnectionPhase::connected || phase == ConnectionPhase::disconnecting;
}

bool OptionsModel::strictMode() const
{
    const Snapshot &now = m_session.now();
    return showsSession() && now.activeMode ? now.activeMode == RoutingMode::strict
                                            : choices().strictMode;
}

// The ladder may have led to others than the chosen ones.
BridgeChoice OptionsModel::bridges() const
{
    return showsSession() ? m_session.now().activeBridge.value_or(BridgeChoice::off)
                          : choices().bridgeChoice;
}

void OptionsModel::setStrictMode(bool on)
{
    Choices next = choices();
    next.strictMode = on;
    m_session.store(next);
}

void OptionsModel::setAllowLocalNetwork(bool on)
{
    Choices next = choices();
    next.allowLocalNetwork = on;
    m_session.store(next);
}

void OptionsModel::setOptimizeSpeed(bool on)
{
    Choices next = choices();
    next.optimizeSpeed = on;
    m_session.store(next);
}

void OptionsModel::setTerminalMode(bool on)
{
    Choices next = choices();
    next.terminalMode = on;
    m_session.store(next);
}

QStringList OptionsModel::exitNames() const
{
    QStringList names;
    for (const ExitCountry &exit : m_exits)
        names << exit.name.translated();
    return names;
}

int OptionsModel::exitIndex() const
{
    const auto found = std::find_if(
        m_exits.begin(), m_exits.end(),
        [this](const ExitCountry &exit) { return exit.code == choices().exitCountry; });
    return found == m_exits.end() ? -1 : static_cast<int>(found - m_exits.begin());
}

void OptionsModel::setExitIndex(int index)
{
    if (index < 0 || index >= static_cast<int>(m_exits.size()))
        return;
    Choices next = choices();
    next.exitCountry = m_exits[static_cast<size_t>(index)].code;
    m_session.store(next);
}

QString OptionsModel::exitUnlisted() const
{
    return exitIndex() < 0 ? choices().exitCountry.toUpper() : QString();
}

QString OptionsModel::exitWarning() const
{
    return choices().exitCountry.isEmpty()
        ? QString()
        : tr(
            "Choosing a country means fewer exit relays, so it's slower and you're easier to single out.");
}

QStringList OptionsModel::bridgeNames() const
{
    return {tr("Off"), tr("obfs4 (built-in)"), tr("Snowflake (built-in)"), tr("meek (built-in)"),
            tr("Custom")};
}

int OptionsModel::bridgeIndex() const
{
    const auto found = std::find(allBridgeChoices.begin(), allBridgeChoices.end(), bridges());
    return static_cast<int>(found - allBridgeChoices.begin());
}

void OptionsModel::setBridgeIndex(int index)
{
    if (index < 0 || index >= static_cast<int>(allBridgeChoices.size()))
        return;
    Choices next = choices();
    next.bridgeChoice = allBridgeChoices[static_cast<size_t>(index)];
    m_session.store(next);
}

bool OptionsModel::needsDownload() const
{
    return lacksTransport(bridges(), choices().customBridges, m_session.now().transports);
}

QString OptionsModel::bridgeNote() const
{
    if (customChosen() && BridgeLines::parse(choices().customBridges).lines.isEmpty())
        return tr("No bridges added yet");
    if (needsDownload())
        return tr("Needs bridge programs: click Download");
    if (bridges() == BridgeChoice::off || customChosen())
        return {};
    return tr("Built-in bridges from %1").arg(m_session.now().transports.source);
}

bool OptionsModel::bridgeNoteIsWarning() const
{
    return needsDownload()
        || (customChosen() && BridgeLines::parse(choices().customBridges).lines.isEmpty());
}

QString OptionsModel::downloadText() const
{
    return shown(m_session.now().transportDownload);
}

QString OptionsModel::bridgeCount(const QString &text) const
{
    const ParsedBridgeLines parsed = BridgeLines::parse(text);
    const auto count = static_cast<int>(parsed.invalid.isEmpty() ? parsed.lines.size()
                                                                 : BridgeText::found(text).size());
    if (count == 0)
        return {};
    return count == 1 ? tr("1 bridge recognized") : tr("%n bridges recognized", nullptr, count);
}

QString OptionsModel::bridgeWarning(const QString &text) const
{
    const ParsedBridgeLines parsed = BridgeLines::parse(text);
    QStringList warnings;
    if (const auto invalid = static_cast<int>(parsed.invalid.size()); invalid > 0)
        warnings << (invalid == 1 ? tr("1 line not recognized")
                                  : tr("%n lines not recognized", nullptr, invalid))
                + inLines(parsed.invalidLineNumbers);
    if (std::any_of(parsed.invalid.begin(), parsed.invalid.end(),
                    BridgeLines::hasForbiddenCharacter))
        warnings << tr("A bridge line can't contain #, \" or \\.");
    if (!parsed.surplusLineNumbers.empty())
        warnings << tr("At most %1 bridges can be used").arg(BridgeLines::mostLines)
                + inLines(parsed.surplusLineNumbers);
    return warnings.join(u'\n');
}

QString OptionsModel::onlyBridges(const QString &text) const
{
    return BridgeLines::parse(text).invalid.isEmpty() ? QString()
                                                      : BridgeText::found(text).join(u'\n');
}

QString OptionsModel::bridgesInFile(const QUrl &file) const
{
    const QString path = file.toLocalFile();
    QFile opened(path);
    if (!QFileInfo(path).isFile() || !opened.open(QIODevice::ReadOnly))
        return {};
    return BridgeText::found(QString::fromUtf8(opened.read(BridgeText::longestText))).join(u'\n');
}

void OptionsModel::saveCustomBridges(const QString &text)
{
    Choices next = choices();
    next.customBridges = text;
    m_session.store(next);
}

QString OptionsModel::applicationCount() const
{
    const qsizetype count = choices().bypassApps.size();
    return count == 0 ? tr("None") : QString::number(count);
}

bool OptionsModel::canLaunchBypassed() const
{
    return m_session.now().phase == ConnectionPhase::connected
        && m_session.now().activeMode == RoutingMode::strict;
}

void OptionsModel::launchBypassed(const QString &path)
{
    forgetLaunchError();
    m_session.launchBypassed(path);
}

void OptionsModel::forgetLaunchError()
{
    if (!std::exchange(m_launchError, QString()).isEmpty())
        Q_EMIT changed();
}

QString OptionsModel::applicationsExplanation() const
{
    return m_session.profile().name == QLatin1String("macos")
        ? tr(
            "In strict mode, these apps can connect directly instead of through Tor, using your real IP address. "
            "Everything else stays locked. Open them with <b>Open without Tor</b> (not from the Dock) so Veldmark "
            "can tag them. A running copy is quit and reopened.")
        : tr(
            "In strict mode, these apps can connect directly instead of through Tor, using your real IP address. "
            "Everything else stays locked. Open them with <b>Open without Tor</b> (not from the desktop's menu) so "
            "Veldmark can tag them. A running copy is quit and reopened.");
}

QString OptionsModel::terminalError() const
{
    return shown(m_session.now().terminalError);
}

QString OptionsModel::applicationName(const QString &path) const
{
    return m_session.applicationName(path);
}

} // namespace veldmark
