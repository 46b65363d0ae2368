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

// Sends requests to Tor over its control port. Every operation opens its own connection to
// 127.0.0.1, authenticates with the plain control password, and closes the connection in every
// outcome. Concurrent operations share nothing. Start here, then read ControlConnection (one
// connection) and ReplyFraming (bytes to replies).
//
// Every operation has a time limit, after which it fails with timedOut. Only hearStreams() goes on
// as long as its caller and Tor want. The clock measures the
// limit. A test that moves its own clock in leaps gives the port a second clock that stands still,
// since a real socket cannot follow the leaps.
//
// Belongs to one thread. The destructor ends running operations with the error closed. The clock
// must outlive the object.
//
// Commands and passwords with a line break or a NUL fail (malformed) before anything is sent: they
// would inject a second command.
class ControlPort {
public:
    using Reply = QStringList; // all the lines of one reply, in order, without line ends
    using Values = QHash<QString, QString>;
    // Work that runs during a capture. The end of the capture requests it to stop.
    using Work = std::function<QCoro::Task<void>(StopToken)>;
    template <typename T> using Outcome = QCoro::Task<Result<T, ControlPortError>>;

    static constexpr quint16 defaultPort = 9051;
    static constexpr std::chrono::milliseconds defaultLimit{20'000};

    // The account that Tor runs in, queried for each operation. Only a process of that account gets
    // the password. An absent result trusts no process. Without the function every process is
    // trusted, as on a system that does not report the account.
    using TorUser = std::function<std::optional<uid_t>()>;

    explicit ControlPort(Clock &clock, quint16 port = defaultPort, TorUser torUser = {});

    // "GETINFO key key…". The value of a key with a data block is empty here; use batch() and
    // dataBlock() for such keys.
    [[nodiscard]] Outcome<Values> getInfo(QStringList keys, QString password,
                                          std::chrono::milliseconds limit = defaultLimit);

    // "SIGNAL name".
    [[nodiscard]] Outcome<void> signal(QString name, QString password,
                                       std::chrono::milliseconds limit = defaultLimit);

    // Sends the commands one after the other on one connection. Returns one element per command:
    // its reply, or nothing when Tor refused the command. The limit is for all commands together.
    [[nodiscard]] Outcome<std::vector<std::optional<Reply>>> batch(
        QStringList commands, QString password, std::chrono::milliseconds limit = defaultLimit);

    // The names that Tor is asked to resolve while `work` runs, for `duration`: in lower case, in
    // the order of the events. A name appears once per event (usually several times). `limit` is
    // for the steps before the capture. Fails only if the capture cannot begin.
    [[nodiscard]] Outcome<QStringList> captureResolves(
        QString password, std::chrono::milliseconds duration, Work work,
        std::chrono::milliseconds limit = defaultLimit);

    // Listens to Tor's events about streams ("650 STREAM …") and calls `hear` with each line, until
    // it returns false or the connection ends. `limit` is for the steps before the first event.
    // Succeeds when `hear` has ended it. `hear` must not destroy the port.
    using Hearer = std::function<bool(const QString &line)>;
    [[nodiscard]] Outcome<void> hearStreams(QString password, Hearer hear,
                                            std::chrono::milliseconds limit = defaultLimit);

    // The traffic of all operations so far.
    ControlTraffic traffic() const;

    // The lines of one key's value in a reply, with dots unstuffed; empty when the key is missing.
    static QStringList dataBlock(const QString &key, const Reply &lines);
    // Key and value of every "250-key=value" line of a reply; the last of equal keys counts.
    static Values getInfoValues(const Reply &lines);
    // The names in those stream events among `lines` that are DNS requests.
    static QStringList resolvedHosts(const QStringList &lines);

private:
    Clock &m_clock;
    const quint16 m_port;
    const TorUser m_torUser;
    const std::shared_ptr<ControlTraffic> m_traffic; // shared with the running operations
    QObject m_lifetime;                              // its destroyed() ends the operations
};

} // namespace veldmark
