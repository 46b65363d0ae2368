#pragma once

#include "base/ResumeOnce.h"

#include <QByteArray>
#include <QJsonObject>
#include <QLocalSocket>

#include <qcorotask.h>

#include <deque>
#include <memory>
#include <optional>

namespace veldmark {

// Reads and writes one JSON object a line over a connected local socket, for client and server.
// Lives on one thread and is always owned by a shared pointer, which its waits hold.
class JsonLines : public QObject, public std::enable_shared_from_this<JsonLines> {
    Q_OBJECT

public:
    static constexpr qsizetype lineLimitBytes = 4 * 1024 * 1024;

    ~JsonLines() override;
    // Takes ownership of the socket.
    static std::shared_ptr<JsonLines> over(QLocalSocket *socket);

    // The next object; absent when the other end has closed, or sent a line that is no JSON object
    // or exceeds the limit. After that nothing more is read, but answers can still be written. One
    // wait at a time.
    QCoro::Task<std::optional<QJsonObject>> next();
    // Queues an object; does nothing when the other end has closed.
    void write(const QJsonObject &object);
    // Whether written bytes still wait to be sent.
    bool hasUnsent() const { return m_socket->bytesToWrite() > 0; }
    // Sends what was written, closes, and resumes when the connection has ended.
    QCoro::Task<void> finish();
    // Closes the connection and ends every wait at once.
    void abort();
    bool isOpen() const { return m_socket->state() == QLocalSocket::ConnectedState; }

Q_SIGNALS:
    // Some of the written bytes were sent.
    void sent();

private:
    explicit JsonLines(QLocalSocket *socket);
    void read();
    bool hasBytes() const;
    void end();
    void give(const std::optional<QJsonObject> &object);
    void onDisconnected();

    std::unique_ptr<QLocalSocket> m_socket;
    QByteArray m_buffer;
    qsizetype m_searchedBytes = 0; // this much of the buffer's start has no newline
    std::deque<QJsonObject> m_ready;
    bool m_gone = false;  // the connection is closed, by either end
    bool m_ended = false; // no more objects will come
    std::optional<ResumeOnce<std::optional<QJsonObject>>> m_waiter;
    std::optional<ResumeOnce<bool>> m_finished;
};

} // namespace veldmark
