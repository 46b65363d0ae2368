#include "ui/SessionTexts.h"

#include <QCoreApplication>

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
    QT_TRANSLATE_NOOP("Session", "Starting Tor…"),
    QT_TRANSLATE_NOOP("Session", "Tor didn't finish connecting"),
    QT_TRANSLATE_NOOP("Session", "Tor is waiting for the bridge program, which hasn't said that it is ready."),
    QT_TRANSLATE_NOOP("Session", "Tor stopped running"),
    QT_TRANSLATE_NOOP("Session", "All traffic is locked to Tor"),
    QT_TRANSLATE_NOOP("Session", "Apps that use system proxy settings go through Tor"),
    QT_TRANSLATE_NOOP("Session", "Tor stopped running. The kill switch is still blocking traffic, so nothing "
                                 "leaked. Reconnect, or Restore Network to go back online."),
    QT_TRANSLATE_NOOP("Session", "Tor stopped running. Apps using the proxy can't connect until you reconnect "
                                 "or Restore Network."),
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

} // namespace

QString translated(const QString &sentence)
{
    return QCoreApplication::translate("Session", sentence.toUtf8().constData());
}

QString bridgeName(BridgeChoice choice)
{
    if (choice == BridgeChoice::custom)
        return QCoreApplication::translate("Session", "Custom");
    return displayName(choice);
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
