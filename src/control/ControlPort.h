#pragma once

#include "base/Clock.h"
#include "base/Result.h"
#include "base/StopToken.h"
#include "control/ControlPortError.h"

#include <QHash>
#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <sys/types.h>

namespace veldmark {

struct ControlTraffic;

// Asks Tor over its control port. Every operation opens a connection of its own to 127.0.0.1,
// authenticates with the plain control password, and closes the connection in every outcome;
// operations that run at once share nothing. There is no connection that lasts. Start here, then
// ControlConnection (one connection) and ReplyFraming (bytes to replies).
//
// Every operation has a time limit, after which it fails with timedOut. The limit is told by the
// clock; a test that moves its own clock in leaps gives the port a second one that stands still,
// since a real socket cannot keep up with it.
//
// Belongs to one thread. Destroying it ends the operations under way with the error closed; the
// clock must outlive it.
//
// Commands and passwords with a line break or a NUL are refused (malformed) before anything is
// sent: they would smuggle a second command in.
class ControlPort {
public:
    using Reply = QStringList; // all the lines of one reply, in order, without line ends
    using Values = QHash<QString, QString>;
    // Work that is run during a capture. It is asked to stop when the capture ends.
    using Work = std::function<QCoro::Task<void>(StopToken)>;
    template <typename T> using Outcome = QCoro::Task<Result<T, ControlPortError>>;

    static constexpr quint16 defaultPort = 9051;
    static constexpr std::chrono::milliseconds defaultLimit{20'000};

    // The account that Tor runs in, asked anew each time; the password goes to nobody else's
    // process. Nothing: no process is trusted. Without the function, any is, as where the system
    // does not tell.
    using TorUser = std::function<std::optional<uid_t>()>;

    explicit ControlPort(Clock &clock, quint16 port = defaultPort, TorUser torUser = {});

    // "GETINFO key key…". A key whose value is a data block has an empty value here; ask for such
    // keys with batch() and dataBlock().
    [[nodiscard]] Outcome<Values> getInfo(QStringList keys, QString password,
                                          std::chrono::milliseconds limit = defaultLimit);

    // "SIGNAL name".
    [[nodiscard]] Outcome<void> signal(QString name, QString password,
                                       std::chrono::milliseconds limit = defaultLimit);

    // Sends the commands one after the other on one connection. One element for each: its reply,
    // or nothing where Tor refused this command. The limit is for all of them together.
    [[nodiscard]] Outcome<std::vector<std::optional<Reply>>> batch(
        QStringList commands, QString password, std::chrono::milliseconds limit = defaultLimit);

    // The names, in lower case and in the order of the events, that Tor is asked to resolve while
    // `work` runs, for `duration`. A name stands there once for each event (usually several). The
    // limit is for what comes before the capture. Fails only if the capture cannot begin.
    [[nodiscard]] Outcome<QStringList> captureResolves(
        QString password, std::chrono::milliseconds duration, Work work,
        std::chrono::milliseconds limit = defaultLimit);

    // What all operations so far have sent to Tor and received.
    ControlTraffic traffic() const;

    // The lines of one key's value within a reply, dots unstuffed; empty when it is not there.
    static QStringList dataBlock(const QString &key, const Reply &lines);
    // Key and value of every "250-key=value" line of a reply; the last of equal keys counts.
    static Values getInfoValues(const Reply &lines);
    // The names within the stream events among `lines` that are DNS requests.
    static QStringList resolvedHosts(const QStringList &lines);

private:
    Clock &m_clock;
    const quint16 m_port;
    const TorUser m_torUser;
    const std::shared_ptr<ControlTraffic> m_traffic; // shared with the operations under way
    QObject m_lifetime;                              // its destroyed() ends the operations
};

} // namespace veldmark
