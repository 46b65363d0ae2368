#pragma once

#include <QHash>
#include <QObject>
#include <QStringList>
#include <QTcpServer>

#include <list>

class QTcpSocket;

namespace veldmark {

// A control port on a free port of 127.0.0.1 that supports as much of Tor's protocol as the
// program's own client needs, and misbehaves on request. It runs on the event loop of the test.
//
//     FakeTor tor;
//     tor.reply("GETINFO version", "250-version=0.4.8\r\n250 OK\r\n");
//     ControlPort port(clock, tor.port());
//
// Without a script, AUTHENTICATE checks the password, SETEVENTS and SIGNAL succeed, and the answer
// to any other command is "510 Unrecognized command".
class FakeTor : public QObject {
public:
    FakeTor();
    ~FakeTor() override;

    quint16 port() const { return m_port; }
    QString password() const { return m_password; }
    // From now on any password of that hash is right; password() is the last right one.
    void setHash(const QString &hash) { m_hash = hash; }

    // The answer to `command` (the whole line) from now on.
    void reply(const QByteArray &command, const QByteArray &bytes);
    // The answer to one later occurrence, after all earlier answers of this kind.
    void replyOnce(const QByteArray &command, const QByteArray &bytes);
    // The connection closes after the answer, if there is one.
    void closeAfter(const QByteArray &command) { m_closing += command; }
    // The command stays unanswered until answerIgnored().
    void ignore(const QByteArray &command) { m_ignored += command; }
    // Answers the commands of ignore() on connections that are still open.
    void answerIgnored();
    // As ignore(), for all commands.
    void setSilent(bool silent) { m_silent = silent; }
    // Sends every byte in a packet of its own, each in its own turn of the event loop.
    void setDribbling(bool dribbling) { m_dribbling = dribbling; }

    // Sends the bytes on every open connection that has sent a SETEVENTS.
    void sendEvent(const QByteArray &bytes);
    // Ends all connections, after the bytes already sent.
    void hangUp();
    // Ends all connections at once.
    void disconnectAll();
    // Ends all connections and refuses new ones; listen() opens the same port again.
    void stopListening();
    void listen();

    int connectionCount() const { return m_connectionCount; } // ever accepted
    int openConnections() const { return static_cast<int>(m_clients.size()); }
    // Every command received, in order, also AUTHENTICATE.
    QStringList commands() const { return m_commands; }

private:
    struct Client {
        QTcpSocket *socket;
        QByteArray received;
        QByteArray pending;          // not yet sent while dribbling
        QByteArrayList ignored = {}; // commands, in order
        bool subscribed = false;
        bool closing = false;
    };

    void accept();
    void read(Client &client);
    void answer(Client &client, const QByteArray &command);
    QByteArray answerTo(const QByteArray &command);
    void send(Client &client, const QByteArray &bytes);
    void dribble();

    QTcpServer m_server;
    quint16 m_port = 0;
    QString m_password = QStringLiteral("secret");
    QString m_hash; // empty: only m_password is right
    std::list<Client> m_clients;
    QHash<QByteArray, QByteArray> m_replies;
    QHash<QByteArray, QByteArrayList> m_repliesOnce;
    QByteArrayList m_closing;
    QByteArrayList m_ignored;
    bool m_silent = false;
    bool m_dribbling = false;
    int m_connectionCount = 0;
    QStringList m_commands;
};

} // namespace veldmark
