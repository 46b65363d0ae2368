#include "ui/SessionTexts.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <vector>

namespace veldmark::SessionTexts {

namespace {

// Only for the translators' files: sentences that the controller says word for word.
[[maybe_unused]] constexpr const char *known[] = {
    QT_TRANSLATE_NOOP("Session", "Your traffic is not going through Tor"),
    QT_TRANSLATE_NOOP("Session", "Restoring your network settings…"),
    QT_TRANSLATE_NOOP("Session", "Your network is still set up for Tor from an earlier session"),
    QT_TRANSLATE_NOOP("Session", "Your network is still set up for Tor"),
    QT_TRANSLATE_NOOP("Session", "Preparing Tor…"),
    QT_TRANSLATE_NOOP("Session", "Waiting for administrator approval…"),
    QT_TRANSLATE_NOOP("Session", "Waiting for an administrator to approve a program…"),
    QT_TRANSLATE_NOOP("Session", "Starting Tor…"),
    QT_TRANSLATE_NOOP("Session", "Tor didn't finish connecting"),
    QT_TRANSLATE_NOOP("Session", "Tor is waiting for the bridge program, which hasn't said that it is ready."),
    QT_TRANSLATE_NOOP("Session", "Tor stopped running"),
    QT_TRANSLATE_NOOP("Session", "All traffic is locked to Tor"),
    QT_TRANSLATE_NOOP("Session", "Apps that use system proxy settings go through Tor"),
    QT_TRANSLATE_NOOP("Session", "Tor stopped running. The kill switch is still blocking traffic, so nothing "
                                 "leaked. Reconnect, or Restore Network to go back online."),
    QT_TRANSLATE_NOOP("Session", "Tor stopped running. The kill switch is still blocking traffic, but the last checks have seen some go "
                                 "around Tor. Reconnect, or Restore Network to go back online."),
    QT_TRANSLATE_NOOP("Session", "Tor stopped running. Apps using the proxy can't connect until you reconnect "
                                 "or Restore Network."),
    QT_TRANSLATE_NOOP("Session", "Tor stopped running, and your network is no longer set up for it."),
    QT_TRANSLATE_NOOP("Session", "Tor stopped running. The kill switch is blocking traffic again, but another program had "
                                 "removed its rules for a while. Reconnect, or Restore Network to go back online."),
    QT_TRANSLATE_NOOP("Session", "Tor stopped running, and the kill switch is open: another program removed its rules. Traffic "
                                 "may leave this computer directly. Reconnect, or Restore Network."),
    QT_TRANSLATE_NOOP("Session", "Tor stopped running, and it isn't known whether the kill switch is still blocking traffic. "
                                 "Reconnect, or Restore Network to go back online."),
    QT_TRANSLATE_NOOP("Session", "The watcher over Veldmark's firewall rules has stopped telling, so it isn't known whether "
                                 "the kill switch stands. Disconnect and connect again."),
    QT_TRANSLATE_NOOP("Session", "Tor hasn't confirmed that it is on the network again, so nothing may get through. Veldmark goes on "
                                 "telling it to; else disconnect and connect again."),
    // Verdict's titles and lines.
    QT_TRANSLATE_NOOP("Session", "Not Protected"),
    QT_TRANSLATE_NOOP("Session", "Connecting…"),
    QT_TRANSLATE_NOOP("Session", "Disconnecting…"),
    QT_TRANSLATE_NOOP("Session", "Protected"),
    QT_TRANSLATE_NOOP("Session", "Proxy Active"),
    QT_TRANSLATE_NOOP("Session", "Needs Attention"),
    QT_TRANSLATE_NOOP("Session", "DNS Leak"),
    QT_TRANSLATE_NOOP("Session", "Kill Switch Open"),
    QT_TRANSLATE_NOOP("Session", "Traffic may leave this computer directly"),
    QT_TRANSLATE_NOOP("Session", "Lookups can go around Tor"),
    QT_TRANSLATE_NOOP("Session", "Lookups can go around Tor, and your real address can be seen"),
    QT_TRANSLATE_NOOP("Session", "Your real address can be seen. Disconnect, or run the leak test again."),
    QT_TRANSLATE_NOOP("Session", "It can't be told whether the kill switch stands. Disconnect and connect again."),
    QT_TRANSLATE_NOOP("Session", "All traffic is locked to Tor, but the exit could not be confirmed"),
    QT_TRANSLATE_NOOP("Session", "Apps that use system proxy settings go through Tor, but the exit could not be confirmed"),
    QT_TRANSLATE_NOOP("Session", "No Network"),
    QT_TRANSLATE_NOOP("Session", "Nothing Gets Through"),
    QT_TRANSLATE_NOOP("Session", "This computer has no network. Nothing gets out around Tor meanwhile."),
    QT_TRANSLATE_NOOP("Session", "This computer has no network. Veldmark goes on when it is back."),
    QT_TRANSLATE_NOOP("Session", "Tor has no working circuit and keeps trying. Nothing gets out around it meanwhile."),
    QT_TRANSLATE_NOOP("Session", "Tor has no working circuit and keeps trying."),
    QT_TRANSLATE_NOOP("Session", "Tor gets no answer from the network and keeps trying. Nothing gets out around it meanwhile."),
    QT_TRANSLATE_NOOP("Session", "Tor gets no answer from the network and keeps trying."),
    QT_TRANSLATE_NOOP("Session", "This computer has no network, so Tor can't connect."),
    QT_TRANSLATE_NOOP("Session", "A VPN takes Tor's traffic, and strict mode does not let the VPN out. Switch the VPN off, or use proxy mode."),
    QT_TRANSLATE_NOOP("Session", "Another program removed Veldmark's firewall rules; they are back in place."),
    QT_TRANSLATE_NOOP("Session", "Another program removed Veldmark's firewall rules and they could not be put back. "
                                 "Traffic may leave this computer directly. Disconnect and connect again."),
    QT_TRANSLATE_NOOP("Session", "Invalid exit country."),
    QT_TRANSLATE_NOOP("Session", "The settings couldn't be saved. Changes to them may last only until you quit."),
    QT_TRANSLATE_NOOP("Session", "Checking latest version…"),
    QT_TRANSLATE_NOOP("Session", "Verifying signature…"),
    QT_TRANSLATE_NOOP("Session", "Another download is under way."),
    QT_TRANSLATE_NOOP("Session", "The download begins again when Tor is connected…"),
    QT_TRANSLATE_NOOP("Session", "Path not responding, finding another…"),
    QT_TRANSLATE_NOOP("Session", "Tor didn't finish connecting within 5 minutes."),
    QT_TRANSLATE_NOOP("Session", "Administrator access was refused, or the agent that asks for the password gave no answer."),
    QT_TRANSLATE_NOOP("Session", "Setup ran but the helper wasn't installed. Try again."),
    QT_TRANSLATE_NOOP("Session", "The helper failed without an error message."),
    QT_TRANSLATE_NOOP("Session", "Add at least one bridge under Bridges → Custom…."),
    QT_TRANSLATE_NOOP("Session", "Some custom bridge lines aren't valid. Fix them under Bridges → Custom…."),
    QT_TRANSLATE_NOOP("Session", "Connect in strict mode to open apps without Tor"),
    QT_TRANSLATE_NOOP("Session", "No bridge answered a quick test, trying them all"),
    QT_TRANSLATE_NOOP("Session", "These bridges need lyrebird, which comes with Tor Browser. Click Download next to Bridges to get it."),
    QT_TRANSLATE_NOOP("Session", "Snowflake needs snowflake-client, which comes with Tor Browser. Click Download next to "
                                 "Bridges to get it."),
    QT_TRANSLATE_NOOP("Session", "Couldn't read the latest Tor version from torproject.org."),
    QT_TRANSLATE_NOOP("Session", "The request timed out."),
    QT_TRANSLATE_NOOP("Session", "The server gave no HTTP answer."),
    QT_TRANSLATE_NOOP("Session", "The connection was lost before the end."),
    QT_TRANSLATE_NOOP("Session", "Not connected to Tor's control port."),
    QT_TRANSLATE_NOOP("Session", "Tor closed the control connection."),
    QT_TRANSLATE_NOOP("Session", "Another program than Tor listens on Tor's control port."),
    QT_TRANSLATE_NOOP("Session", "Tor didn't answer on its control port in time."),
    QT_TRANSLATE_NOOP("Session", "Tor isn't installed. Install it with your package manager or set its location in Settings."),
    QT_TRANSLATE_NOOP("Session", "Tor isn't installed. Install it with Homebrew (brew install tor) or set its location in Settings."),
    QT_TRANSLATE_NOOP("Session", "The helper script is missing from the app bundle. Rebuild the app with build.sh."),
    QT_TRANSLATE_NOOP("Session", "Administrator access can't be asked for: polkit is not running on this system."),
    QT_TRANSLATE_NOOP("Session", "Administrator access can't be asked for: no PolicyKit authentication agent is running in this "
                                 "session."),
    QT_TRANSLATE_NOOP("Session", "The password could not be checked: polkit takes none from this terminal. Run it with sudo."),
    QT_TRANSLATE_NOOP("Session", "ssh doesn't go through Tor yet: it needs a netcat that speaks SOCKS. Install the "
                                 "OpenBSD netcat or Ncat with your package manager."),
    QT_TRANSLATE_NOOP("Session", "This computer"),
    QT_TRANSLATE_NOOP("Session", "This Mac"),
    QT_TRANSLATE_NOOP("Session", "on this computer"),
    QT_TRANSLATE_NOOP("Session", "on this Mac"),
    QT_TRANSLATE_NOOP("Session", "Any (recommended)"),
    QT_TRANSLATE_NOOP("Session", "United States"),
    QT_TRANSLATE_NOOP("Session", "Canada"),
    QT_TRANSLATE_NOOP("Session", "United Kingdom"),
    QT_TRANSLATE_NOOP("Session", "Germany"),
    QT_TRANSLATE_NOOP("Session", "Netherlands"),
    QT_TRANSLATE_NOOP("Session", "France"),
    QT_TRANSLATE_NOOP("Session", "Sweden"),
    QT_TRANSLATE_NOOP("Session", "Switzerland"),
    QT_TRANSLATE_NOOP("Session", "Finland"),
    QT_TRANSLATE_NOOP("Session", "Romania"),
    QT_TRANSLATE_NOOP("Session", "Japan"),
    QT_TRANSLATE_NOOP("Session", "Singapore"),
};

// Those with a word or number of the moment in them; in every language in this order.
constexpr const char *forms[] = {
    QT_TRANSLATE_NOOP("Session", "Testing %1 bridges…"),
    QT_TRANSLATE_NOOP("Session", "Testing speed (%1 of %2)…"),
    QT_TRANSLATE_NOOP("Session", "Slow path (%1 ms), finding a faster one…"),
    QT_TRANSLATE_NOOP("Session", "Downloading Tor %1 bridge programs…"),
    QT_TRANSLATE_NOOP("Session", "Download of %1 failed (HTTP %2)."),
    QT_TRANSLATE_NOOP("Session", "Version %1 is offered, which is older than the installed %2. Nothing was changed."),
    QT_TRANSLATE_NOOP("Session", "What came as version %1 is another one, so it was discarded."),
    QT_TRANSLATE_NOOP("Session", "The settings file couldn't be read. It was kept as %1, and a new one is used."),
    QT_TRANSLATE_NOOP("Session", "The settings file %1 can't be read or replaced. Changes to the settings last "
                                 "until you quit."),
    QT_TRANSLATE_NOOP("Session", "At most %1 custom bridges can be used. Remove some under Bridges → Custom…."),
    QT_TRANSLATE_NOOP("Session", "Couldn't open %1 without Tor: %2"),
    QT_TRANSLATE_NOOP("Session", "\"%1\" is no place for Tor: give the whole path, such as /usr/bin/tor."),
    QT_TRANSLATE_NOOP("Session", "\"%1\" holds for the whole connection. Disconnect to change it."),
    QT_TRANSLATE_NOOP("Session", "Couldn't set up terminal mode: %1"),
    QT_TRANSLATE_NOOP("Session", "Couldn't remove terminal integration: %1"),
    QT_TRANSLATE_NOOP("Session", "Couldn't set up passwordless mode: %1"),
    QT_TRANSLATE_NOOP("Session", "Couldn't remove passwordless mode: %1"),
    QT_TRANSLATE_NOOP("Session", "ssh doesn't go through Tor yet: it needs a netcat that speaks SOCKS. Install one "
                                 "with: %1"),
    QT_TRANSLATE_NOOP("Session", "Your network is set up for Tor by another Veldmark of yours, process %1"),
    QT_TRANSLATE_NOOP("Session", "Your network is set up for Tor by %1, whose Veldmark is process %2"),
    QT_TRANSLATE_NOOP("Session", "Another Veldmark of yours has begun a session since, so nothing was ended. Disconnect again to end it."),
    QT_TRANSLATE_NOOP("Session", "Another user's Veldmark has begun a session since, so nothing was ended. Disconnect again to end it."),
    QT_TRANSLATE_NOOP("Session", "Another Veldmark of yours is connected (process %1). "
                                 "Disconnect it, or restore the network, first."),
    QT_TRANSLATE_NOOP("Session", "%1 is connected with Veldmark (process %2). "
                                 "That session must be ended first."),
    QT_TRANSLATE_NOOP("Session", "Another firewall on this computer denies what goes out, so Tor can't connect: %1."),
    QT_TRANSLATE_NOOP("Session", "Couldn't fix DNS: %1"),
    QT_TRANSLATE_NOOP("Session", "Couldn't request a new identity: %1"),
    QT_TRANSLATE_NOOP("Session", "Couldn't read circuits: %1"),
    QT_TRANSLATE_NOOP("Session", "Couldn't change the login-item setting: %1"),
    QT_TRANSLATE_NOOP("Session", "Couldn't download bridge programs: %1"),
    QT_TRANSLATE_NOOP("Session", "Bridge programs %1 installed over HTTPS. Install GnuPG (%2) and download again to also verify "
                                 "the Tor Project's signature."),
    QT_TRANSLATE_NOOP("Session", "The download's signature didn't verify, so it was discarded. %1"),
    QT_TRANSLATE_NOOP("Session", "Couldn't unpack the download. %1"),
    QT_TRANSLATE_NOOP("Session", "Tor can't reach the bridge program: %1."),
    QT_TRANSLATE_NOOP("Session", "Tor reports: %1 (%2)."),
    QT_TRANSLATE_NOOP("Session", "Tor reports: %1."),
    QT_TRANSLATE_NOOP("Session", "Tor replied: %1"),
    QT_TRANSLATE_NOOP("Session", "Tor has trouble with the bridge program: %1"),
    QT_TRANSLATE_NOOP("Session", "The bridge program printed something that Tor doesn't understand: \"%1\"."),
    QT_TRANSLATE_NOOP("Session", "Using the %1 fastest of %2 bridges"),
    QT_TRANSLATE_NOOP("Session", "The %1 bridge type isn't supported yet."),
    QT_TRANSLATE_NOOP("Session", "Built-in %1 bridges come from Tor Browser. Click Download next to Bridges, install Tor "
                                 "Browser, or paste your own under Bridges → Custom…."),
    QT_TRANSLATE_NOOP("Session", "Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around "
                                 "Tor: %1. Strict mode's firewall blocks them."),
    QT_TRANSLATE_NOOP("Session", "Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1."),
    QT_TRANSLATE_NOOP("Session", "Tor isn't installed. Install it with your package manager (%1) or set its location in Settings."),
    QT_TRANSLATE_NOOP("Session", "%1 is already being opened."),
    QT_TRANSLATE_NOOP("Session", "%1 Your network is still pointed at Tor. Click Restore Network to undo."),
};

struct Form {
    const char *source;
    QRegularExpression pattern;
};

const std::vector<Form> &patterns()
{
    static const std::vector<Form> made = [] {
        static const QRegularExpression place(QStringLiteral("%\\d"));
        std::vector<Form> list;
        for (const char *source : forms) {
            QStringList parts = QString::fromUtf8(source).split(place);
            for (QString &part : parts)
                part = QRegularExpression::escape(part);
            list.push_back({source, QRegularExpression(QRegularExpression::anchoredPattern(
                                        parts.join(QStringLiteral("(.+?)"))))});
        }
        return list;
    }();
    return made;
}

} // namespace

QString translated(const QString &sentence)
{
    const QString whole = QCoreApplication::translate("Session", sentence.toUtf8().constData());
    if (whole != sentence)
        return whole;
    for (const Form &form : patterns()) {
        const auto match = form.pattern.match(sentence);
        if (!match.hasMatch())
            continue;
        const QString text = QCoreApplication::translate("Session", form.source);
        const QString first = translated(match.captured(1)); // may be a sentence of its own
        return match.lastCapturedIndex() == 1 ? text.arg(first) : text.arg(first, match.captured(2));
    }
    return sentence;
}

QString bridgeName(BridgeChoice choice)
{
    if (choice == BridgeChoice::custom)
        return QCoreApplication::translate("Session", "Custom");
    return displayName(choice);
}

bool isCommand(const QString &installHint)
{
    return installHint.contains(QLatin1String("install ")) || installHint.contains(QLatin1String("pacman "));
}

QString lookups(const Lookups &lookups)
{
    switch (lookups.kind) {
    case Lookups::Kind::leak:
        return QCoreApplication::translate("Session", "DNS can go around Tor via: ")
            + lookups.leaks.join(QStringLiteral("; "));
    case Lookups::Kind::unknown:
        return QCoreApplication::translate("Session", "DNS: not tested yet.");
    case Lookups::Kind::checking:
        return QCoreApplication::translate("Session", "DNS: testing…");
    case Lookups::Kind::throughTor:
        return QCoreApplication::translate("Session", "DNS: a test lookup went through Tor.");
    case Lookups::Kind::unverified:
        break;
    }
    return QCoreApplication::translate(
        "Session", "DNS: settings point at Tor, but a test lookup couldn't be confirmed.");
}

} // namespace veldmark::SessionTexts
