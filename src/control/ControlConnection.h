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

// Bytes that went to and came from Tor's control port, which Tor counts as traffic like all others.
struct ControlTraffic {
    qint64 sent = 0;
    qint64 received = 0;
};

// One connection to Tor's control port, for one call of ControlPort: open(), one or more commands
// (or a command and then collectEvents()), close(). It is never reopened.
//
// Used by one task at a time, on the thread that made it. Whoever awaits one of its tasks keeps it
// alive until the task is done; close() and abort() end a wait promptly. Nothing here has a time
// limit of its own: the owner calls abort().
//
// Errors: what the call runs into is returned once; with a socket that failed, every later call
// returns the same.
class ControlConnection final : public QObject {
public:
    // torUser: the account that Tor must run in, or nothing where that cannot be asked.
    explicit ControlConnection(quint16 port,
                               const QHostAddress &host = QHostAddress(QHostAddress::LocalHost),
                               std::optional<uid_t> torUser = std::nullopt);
    ~ControlConnection() override;

    // Adds what it sends and receives to these.
    void countIn(std::shared_ptr<ControlTraffic> traffic) { m_traffic = std::move(traffic); }

    // Connects, past any proxy, and authenticates with the plain password, once a process of
    // Tor's account has taken the connection. Tor not listening is the system's error at once.
    [[nodiscard]] QCoro::Task<Result<void, ControlPortError>> open(QString password);

    // Sends one command line (without its end) and gives all the lines of the reply. A final line
    // that does not begin with "2" is the error tor(line).
    [[nodiscard]] QCoro::Task<Result<QStringList, ControlPortError>> command(QString text);

    // Resumes when the system has taken all the bytes.
    [[nodiscard]] QCoro::Task<Result<void, ControlPortError>> send(QByteArray bytes);

    // The next 1 to 65,536 bytes.
    [[nodiscard]] QCoro::Task<Result<QByteArray, ControlPortError>> receive();

    // Every line that arrives within `duration`, or until the connection ends, which is closed
    // afterwards. Lines that had come with an earlier reply are the first. At most 64 MiB.
    [[nodiscard]] QCoro::Task<QStringList> collectEvents(Clock *clock,
                                                         std::chrono::milliseconds duration);

    bool isOpen() const;
    void close();
    // Closes it; a wait under way, and every later call, fails with `reason`.
    void abort(const ControlPortError &reason);

private:
    using Change = ResumeOnce<std::monostate>;

    // Fails with stranger() when anybody but Tor's account has taken the connection.
    QCoro::Task<Result<void, ControlPortError>> proveTor();

    Change nextChange();
    void signalChange();
    // What a wait that has just been resumed must fail with, if anything.
    std::optional<ControlPortError> interruption() const;

    const QHostAddress m_host;
    const quint16 m_port;
    const std::optional<uid_t> m_torUser;
    std::shared_ptr<ControlTraffic> m_traffic = std::make_shared<ControlTraffic>();
    std::unique_ptr<QTcpSocket> m_socket; // null before open() and after close()
    std::optional<Change> m_change;       // what the waiting task, if any, waits for
    std::optional<ControlPortError> m_failure;
    ReplyFraming m_framing;
};

// Aborts `connection` with `reason` after `duration`, unless it is gone by then or `watched` is.
QCoro::Task<void> abortAfter(Clock *clock, std::chrono::milliseconds duration,
                             QPointer<ControlConnection> connection, ControlPortError reason,
                             std::weak_ptr<const std::monostate> watched);

// Whether Tor would read `text` as one line, as every command and password must be: anything
// after a line break would be a command of its own.
bool isSingleLine(const QString &text);

} // namespace veldmark
