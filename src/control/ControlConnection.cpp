#include "control/ControlConnection.h"

#include "control/PeerAccount.h"

#include <QNetworkProxy>
#include <QTimer>

#include <algorithm>

namespace veldmark {

namespace {
constexpr qint64 largestChunkBytes = 65'536;
constexpr std::chrono::milliseconds acceptPoll{5};
// the kernel's table may show the other end a moment later than this one
constexpr int absentPolls = 100;

ControlPortError lineBreakError()
{
    return ControlPortError::malformed(
        Text::tr("A command to Tor can't contain a line break or a NUL."));
}
} // namespace

bool isSingleLine(const QString &text)
{
    return std::none_of(text.begin(), text.end(), [](QChar character) {
        return character == u'\r' || character == u'\n' || character == u'\0';
    });
}

QCoro::Task<void> abortAfter(Clock *clock, std::chrono::milliseconds duration,
                             QPointer<ControlConnection> connection, ControlPortError reason,
                             std::weak_ptr<const std::monostate> watched)
{
    co_await clock->sleep(duration);
    if (connection && !watched.expired())
        connection->abort(reason);
}

ControlConnection::ControlConnection(quint16 port, const QHostAddress &host,
                                     std::optional<uid_t> torUser)
    : m_host(host),
      m_port(port),
      m_torUser(torUser)
{
}

ControlConnection::~ControlConnection()
{
    close();
}

bool ControlConnection::isOpen() const
{
    return m_socket != nullptr;
}

void ControlConnection::close()
{
    if (!m_socket)
        return;
    m_socket->disconnect(this);
    m_socket->abort();
    m_socket.reset();
    signalChange();
}

void ControlConnection::abort(const ControlPortError &reason)
{
    if (!m_failure)
        m_failure = reason;
    close();
}

// The socket's signals only wake the waiting task, which then checks the socket's state. Their
// order and number do not matter.
ControlConnection::Change ControlConnection::nextChange()
{
    m_change.emplace();
    return *m_change;
}

void ControlConnection::signalChange()
{
    if (m_change)
        m_change->complete({});
}

std::optional<ControlPortError> ControlConnection::interruption() const
{
    if (m_failure)
        return m_failure;
    if (!m_socket)
        return ControlPortError::closed();
    return std::nullopt;
}

QCoro::Task<Result<void, ControlPortError>> ControlConnection::open(QString password)
{
    if (!isSingleLine(password))
        co_return Failure(lineBreakError());
    if (m_failure)
        co_return Failure(*m_failure);
    m_socket.reset(new QTcpSocket);
    m_socket->setProxy(QNetworkProxy::NoProxy);     // the system's proxy may be Tor itself
    m_socket->setReadBufferSize(largestChunkBytes); // the system holds back the rest
    connect(m_socket.get(), &QTcpSocket::connected, this, &ControlConnection::signalChange);
    connect(m_socket.get(), &QTcpSocket::readyRead, this, &ControlConnection::signalChange);
    connect(m_socket.get(), &QTcpSocket::bytesWritten, this, &ControlConnection::signalChange);
    connect(m_socket.get(), &QTcpSocket::disconnected, this, &ControlConnection::signalChange);
    connect(m_socket.get(), &QTcpSocket::errorOccurred, this, &ControlConnection::signalChange);
    m_socket->connectToHost(m_host, m_port);
    while (m_socket->state() != QAbstractSocket::ConnectedState) {
        if (m_socket->state() == QAbstractSocket::UnconnectedState) {
            m_failure = ControlPortError::network(m_socket->errorString());
            co_return Failure(*m_failure);
        }
        const Change change = nextChange();
        co_await change;
        if (const auto stop = interruption())
            co_return Failure(*stop);
    }
    if (m_torUser) {
        const auto proven = co_await proveTor();
        if (!proven)
            co_return Failure(proven.error());
    }
    const auto reply = co_await command(QStringLiteral("AUTHENTICATE \"%1\"").arg(password));
    if (!reply)
        co_return Failure(reply.error());
    co_return Result<void, ControlPortError>{};
}

// The account that accepted this connection counts, not the account that listens now: a listener
// can make room for Tor.
QCoro::Task<Result<void, ControlPortError>> ControlConnection::proveTor()
{
    for (int absent = 0;;) {
        const PeerAccount peer = PeerAccount::ask(m_port, m_socket->localPort());
        if (peer.kind == PeerAccount::Kind::Accepted && peer.user == *m_torUser)
            co_return Result<void, ControlPortError>{};
        if (peer.kind == PeerAccount::Kind::Accepted
            || (peer.kind == PeerAccount::Kind::Absent && ++absent > absentPolls)) {
            m_failure = m_socket->state() == QAbstractSocket::ConnectedState
                ? ControlPortError::stranger()
                : ControlPortError::closed();
            co_return Failure(*m_failure);
        }
        const Change change = nextChange();
        QTimer::singleShot(acceptPoll, this, &ControlConnection::signalChange);
        co_await change;
        if (const auto stop = interruption())
            co_return Failure(*stop);
    }
}

QCoro::Task<Result<QStringList, ControlPortError>> ControlConnection::command(QString text)
{
    if (!isSingleLine(text))
        co_return Failure(lineBreakError());
    const auto sent = co_await send(text.toUtf8() + "\r\n");
    if (!sent)
        co_return Failure(sent.error());
    for (;;) {
        const auto reply = m_framing.nextReply();
        if (!reply)
            co_return Failure(reply.error());
        if (*reply) {
            const QStringList lines = **reply;
            if (!lines.constLast().startsWith(u'2'))
                co_return Failure(ControlPortError::tor(lines.constLast()));
            co_return lines;
        }
        const auto chunk = co_await receive();
        if (!chunk)
            co_return Failure(chunk.error());
        m_framing.feed(*chunk);
    }
}

QCoro::Task<Result<void, ControlPortError>> ControlConnection::send(QByteArray bytes)
{
    if (m_failure)
        co_return Failure(*m_failure);
    if (!m_socket)
        co_return Failure(ControlPortError::notConnected());
    if (m_socket->write(bytes) != bytes.size()) {
        if (m_socket->state() != QAbstractSocket::ConnectedState)
            co_return Failure(ControlPortError::closed());
        co_return Failure(ControlPortError::network(m_socket->errorString()));
    }
    m_traffic->sent += bytes.size();
    while (m_socket->bytesToWrite() > 0) {
        if (m_socket->state() == QAbstractSocket::UnconnectedState)
            break; // receive() returns the remaining bytes and then the reason
        const Change change = nextChange();
        co_await change;
        if (const auto stop = interruption())
            co_return Failure(*stop);
    }
    co_return Result<void, ControlPortError>{};
}

QCoro::Task<Result<QByteArray, ControlPortError>> ControlConnection::receive()
{
    if (m_failure)
        co_return Failure(*m_failure);
    if (!m_socket)
        co_return Failure(ControlPortError::notConnected());
    while (m_socket->bytesAvailable() == 0) {
        if (m_socket->state() != QAbstractSocket::ConnectedState) {
            const bool byTor = m_socket->error() == QAbstractSocket::RemoteHostClosedError
                || m_socket->error() == QAbstractSocket::UnknownSocketError;
            m_failure = byTor ? ControlPortError::closed()
                              : ControlPortError::network(m_socket->errorString());
            co_return Failure(*m_failure);
        }
        const Change change = nextChange();
        co_await change;
        if (const auto stop = interruption())
            co_return Failure(*stop);
    }
    const QByteArray bytes = m_socket->read(largestChunkBytes);
    m_traffic->received += bytes.size();
    co_return bytes;
}

QCoro::Task<Result<QString, ControlPortError>> ControlConnection::nextLine()
{
    for (;;) {
        const auto line = m_framing.nextLine();
        if (!line)
            co_return Failure(line.error());
        if (*line)
            co_return **line;
        const auto chunk = co_await receive();
        if (!chunk)
            co_return Failure(chunk.error());
        m_framing.feed(*chunk);
    }
}

QCoro::Task<QStringList> ControlConnection::collectEvents(Clock *clock,
                                                          std::chrono::milliseconds duration)
{
    const auto watched = std::make_shared<const std::monostate>();
    abortAfter(clock, duration, this, ControlPortError::closed(), watched);

    QStringList lines;
    qsizetype weight = 0;
    while (weight <= ReplyFraming::largestReplyBytes) {
        const auto line = m_framing.nextLine();
        if (!line)
            break;
        if (*line) {
            lines += **line;
            weight += (*line)->size() + ReplyFraming::lineOverheadBytes;
            continue;
        }
        const auto chunk = co_await receive();
        if (!chunk)
            break;
        m_framing.feed(*chunk);
    }
    close();
    co_return lines;
}

} // namespace veldmark
