#pragma once

#include "base/Clock.h"
#include "base/ResumeOnce.h"
#include "control/ReplyFraming.h"

#include <QHostAddress>
#include <QObject>
#include <QPointer>
#include <QTcpSocket>

#include <memory>
#include <optional>
#include <variant>

#include <sys/types.h>

namespace veldmark {

// Bytes sent to and received from Tor's control port. Tor counts them in its traffic.
struct ControlTraffic {
    qint64 sent = 0;
    qint64 received = 0;
};

// One connection to Tor's control port, for one call of ControlPort: open(), one or more commands
// (or a command and then nextLine() or collectEvents()), close(). It is never reopened.
//
// One task at a time uses it, on the thread that made it. The caller keeps it alive until the
// awaited task is done; close() and abort() end a wait promptly. It has no time limit of its own:
// the owner calls abort().
//
// A call returns the error that it meets. After a socket failure every later call returns the same
// error.
class ControlConnection final : public QObject {
public:
    // torUser: the account that Tor must run in; absent where the program cannot find out the
    // account of the peer.
    explicit ControlConnection(quint16 port,
                               const QHostAddress &host = QHostAddress(QHostAddress::LocalHost),
                               std::optional<uid_t> torUser = std::nullopt);
    ~ControlConnection() override;

    // Adds the sent and received bytes to `traffic`.
    void countIn(std::shared_ptr<ControlTraffic> traffic) { m_traffic = std::move(traffic); }

    // Connects without a proxy. Authenticates with the plain password once a process of Tor's
    // account has accepted the connection. When Tor does not listen, the system's error comes at
    // once.
    [[nodiscard]] QCoro::Task<Result<void, ControlPortError>> open(QString password);

    // Sends one command line (without its end) and returns all lines of the reply. A final line
    // that does not begin with "2" becomes the error tor(line).
    [[nodiscard]] QCoro::Task<Result<QStringList, ControlPortError>> command(QString text);

    // Resumes when the system has accepted all the bytes.
    [[nodiscard]] QCoro::Task<Result<void, ControlPortError>> send(QByteArray bytes);

    // The next 1 to 65,536 bytes.
    [[nodiscard]] QCoro::Task<Result<QByteArray, ControlPortError>> receive();

    // The next line outside of a reply, such as an event. Waits without a limit. Lines that arrived
    // with an earlier reply come first.
    [[nodiscard]] QCoro::Task<Result<QString, ControlPortError>> nextLine();

    // Every line that arrives within `duration`, or until the connection ends. Closes the
    // connection afterwards. Lines that arrived with an earlier reply come first. At most 64 MiB.
    [[nodiscard]] QCoro::Task<QStringList> collectEvents(Clock *clock,
                                                         std::chrono::milliseconds duration);

    bool isOpen() const;
    void close();
    // Closes it; the current wait and every later call fail with `reason`.
    void abort(const ControlPortError &reason);

private:
    using Change = ResumeOnce<std::monostate>;

    // Fails with stranger() when a process of another account has accepted the connection.
    QCoro::Task<Result<void, ControlPortError>> proveTor();

    Change nextChange();
    void signalChange();
    // The error for a wait that has just resumed, if any.
    std::optional<ControlPortError> interruption() const;

    const QHostAddress m_host;
    const quint16 m_port;
    const std::optional<uid_t> m_torUser;
    std::shared_ptr<ControlTraffic> m_traffic = std::make_shared<ControlTraffic>();
    std::unique_ptr<QTcpSocket> m_socket; // null before open() and after close()
    std::optional<Change> m_change;       // the event that the waiting task, if any, waits for
    std::optional<ControlPortError> m_failure;
    ReplyFraming m_framing;
};

// Aborts `connection` with `reason` after `duration`, unless `connection` or `watched` no longer
// exists.
QCoro::Task<void> abortAfter(Clock *clock, std::chrono::milliseconds duration,
                             QPointer<ControlConnection> connection, ControlPortError reason,
                             std::weak_ptr<const std::monostate> watched);

// Whether Tor would read `text` as one line. Every command and password must be one line, because
// text after a line break would be a command of its own.
bool isSingleLine(const QString &text);

} // namespace veldmark
