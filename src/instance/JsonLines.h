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

// One JSON object a line, over a connected local socket, for both ends of it. Lives on one thread
// and is always owned by a shared pointer, which its waits hold.
class JsonLines : public QObject, public std::enable_shared_from_this<JsonLines> {
    Q_OBJECT

public:
    static constexpr qsizetype lineLimitBytes = 4 * 1024 * 1024;

    // Takes the socket over.
    static std::shared_ptr<JsonLines> over(QLocalSocket *socket);

    // The next object; nothing when the other end has gone, sent a line that is no JSON object, or
    // sent a line longer than the limit. One wait at a time.
    QCoro::Task<std::optional<QJsonObject>> next();
    // Buffers; does nothing when the other end has gone.
    void write(const QJsonObject &object);
    // Lets what was written go out, then closes.
    void close() { m_socket->disconnectFromServer(); }
    bool isOpen() const { return m_socket->state() == QLocalSocket::ConnectedState; }
    QLocalSocket &socket() { return *m_socket; }

private:
    explicit JsonLines(QLocalSocket *socket);
    void read();
    void give(std::optional<QJsonObject> object);

    std::unique_ptr<QLocalSocket> m_socket;
    QByteArray m_buffer;
    std::deque<QJsonObject> m_ready;
    bool m_ended = false;
    std::optional<ResumeOnce<std::optional<QJsonObject>>> m_waiter;
};

} // namespace veldmark
