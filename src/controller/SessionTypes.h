#pragma once

#include "base/RoutingMode.h"

#include <QObject>
#include <QString>

#include <optional>
#include <vector>

namespace veldmark {
Q_NAMESPACE

// Where the session stands. Changes only through TorController's operations.
enum class ConnectionPhase {
    disconnected,  // no session; the network is in its normal state
    connecting,    // helper approval, Tor's start, bootstrap
    connected,     // Tor has bootstrapped and the network is routed through it
    disconnecting, // the network is being restored and Tor stopped
    stale,         // the network is still set up for Tor but no session of this run owns it
};
Q_ENUM_NS(ConnectionPhase)

// The headline of a session in this state. A leak comes first; and proxy mode is never called
// protected, since applications that ignore the proxy settings are not covered.
QString sessionTitle(ConnectionPhase phase, std::optional<RoutingMode> mode, bool isDNSLeaking);
// The name of the symbol for the menu bar.
QString sessionSymbol(ConnectionPhase phase, bool isDNSLeaking);

// An exit country that the user can choose; its identity is `code`.
struct ExitCountry {
    QString code; // two lower-case letters; empty = any
    QString name;

    bool operator==(const ExitCountry &other) const { return code == other.code; }
    // In the order of the picker.
    static const std::vector<ExitCountry> &all();
    // Empty (any country), or exactly two lower-case letters.
    static bool isValid(const QString &code);
};

// What can go wrong in the connect sequence itself.
class TorError {
public:
    static TorError hashFailed(const QString &message);
    // `lastError`: the description of the last control-port error met while waiting, if any.
    static TorError bootstrapTimeout(const std::optional<QString> &lastError);

    QString description() const { return m_description; }

private:
    explicit TorError(QString description) : m_description(std::move(description)) {}
    QString m_description;
};

} // namespace veldmark
