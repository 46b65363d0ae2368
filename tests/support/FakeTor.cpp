#include "support/FakeTor.h"

#include "base/TorPassword.h"

#include <QNetworkProxy>
#include <QTcpSocket>
#include <QTimer>

#include <utility>

namespace veldmark {

FakeTor::FakeTor()
{
    m_server.setProxy(QNetworkProxy::NoProxy);
    connect(&m_server, &QTcpServer::newConnection, this, &FakeTor::accept);
    listen();
}

FakeTor::~FakeTor()
{
    stopListening();
}

void FakeTor::listen()
{
    if (!m_server.listen(QHostAddress(QHostAddress::LocalHost), m_port))
        qFatal("FakeTor: %s", qPrintable(m_server.errorString()));
    m_port = m_server.serverPort();
}

void FakeTor::stopListening()
{
    m_server.close();
    disconnectAll();
}

void FakeTor::disconnectAll()
{
    while (!m_clients.empty()) {
        QTcpSocket *socket = m_clients.front().socket;
        m_clients.pop_front();
        socket->disconnect(this);
        socket->abort();
        socket->deleteLater();
    }
}

void FakeTor::hangUp()
{
    for (const Client &client : m_clients)
        client.socket->disconnectFromHost();
}

void FakeTor::reply(const QByteArray &command, const QByteArray &bytes)
{
    m_replies.insert(command, bytes);
}

void FakeTor::replyOnce(const QByteArray &command, const QByteArray &bytes)
{
    m_repliesOnce[command].append(bytes);
}

void FakeTor::sendEvent(const QByteArray &bytes)
{
    for (Client &client : m_clients) {
        if (client.subscribed)
            send(client, bytes);
    }
}

void FakeTor::answerIgnored()
{
    m_ignored.clear();
    for (Client &client : m_clients) {
        for (const QByteArray &command : std::exchange(client.ignored, {}))
            send(client, answerTo(command));
    }
}

void FakeTor::accept()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection()) {
        ++m_connectionCount;
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        const auto client = m_clients.insert(m_clients.end(), Client{socket, {}, {}, {}});
        connect(socket, &QTcpSocket::readyRead, this, [this, client] { read(*client); });
        // Queued: a client may disconnect while its commands are being answered.
        connect(
            socket, &QTcpSocket::disconnected, this,
            [this, socket] {
                if (std::erase_if(m_clients,
                                  [socket](const Client &c) { return c.socket == socket; }))
                    socket->deleteLater();
            },
            Qt::QueuedConnection);
    }
}

void FakeTor::read(Client &client)
{
    client.received += client.socket->readAll();
    for (;;) {
        const qsizetype end = client.received.indexOf("\r\n");
        if (end < 0 || client.closing)
            return;
        const QByteArray command = client.received.left(end);
        client.received.remove(0, end + 2);
        answer(client, command);
    }
}

void FakeTor::answer(Client &client, const QByteArray &command)
{
    m_commands += QString::fromUtf8(command);
    client.subscribed = client.subscribed || command.startsWith("SETEVENTS ");
    client.closing = m_closing.contains(command);
    if (m_silent || m_ignored.contains(command)) {
        client.ignored += command;
        return;
    }
    if (m_replies.contains(command) || !client.closing)
        send(client, answerTo(command));
    else
        client.socket->disconnectFromHost();
}

QByteArray FakeTor::answerTo(const QByteArray &command)
{
    if (const auto once = m_repliesOnce.find(command);
        once != m_repliesOnce.end() && !once->isEmpty())
        return once->takeFirst();
    if (const auto reply = m_replies.constFind(command); reply != m_replies.constEnd())
        return *reply;
    if (command.startsWith("AUTHENTICATE")) {
        QByteArray given = command.mid(14);
        given.chop(1); // between the quotes
        if (!m_hash.isEmpty() && TorPassword::matches(given, m_hash))
            m_password = QString::fromUtf8(given);
        return command == "AUTHENTICATE \"" + m_password.toUtf8() + '"'
            ? QByteArray("250 OK\r\n")
            : QByteArray("515 Authentication failed: Password did not match HashedControlPassword "
                         "*or* authentication cookie.\r\n");
    }
    if (command.startsWith("SETEVENTS") || command.startsWith("SIGNAL "))
        return "250 OK\r\n";
    return "510 Unrecognized command \"" + command.left(command.indexOf(' ')) + "\"\r\n";
}

void FakeTor::send(Client &client, const QByteArray &bytes)
{
    if (m_dribbling) {
        const bool idle = client.pending.isEmpty();
        client.pending += bytes;
        if (idle)
            QTimer::singleShot(0, this, &FakeTor::dribble);
        return;
    }
    client.socket->write(bytes);
    if (client.closing)
        client.socket->disconnectFromHost(); // after the bytes already written
}

// Sends one byte to each client that has any left, and repeats while there are such clients.
void FakeTor::dribble()
{
    bool more = false;
    for (Client &client : m_clients) {
        if (client.pending.isEmpty())
            continue;
        client.socket->write(client.pending.left(1));
        client.socket->flush();
        client.pending.remove(0, 1);
        if (!client.pending.isEmpty())
            more = true;
        else if (client.closing)
            client.socket->disconnectFromHost();
    }
    if (more)
        QTimer::singleShot(0, this, &FakeTor::dribble);
}

} // namespace veldmark
