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

    ~JsonLines() override;
    // Takes the socket over.
    static std::shared_ptr<JsonLines> over(QLocalSocket *socket);

    // The next object; nothing when the other end has gone, or is not understood: it sent a line
    // that is no JSON object, or one longer than the limit. Then nothing more is read, while
    // answers can still be written. One wait at a time.
    QCoro::Task<std::optional<QJsonObject>> next();
    // Buffers; does nothing when the other end has gone.
    void write(const QJsonObject &object);
    // Whether some of what was written waits for the other end to read.
    bool hasUnsent() const { return m_socket->bytesToWrite() > 0; }
    // Lets what was written go out, closes, and resumes when the connection has ended.
    QCoro::Task<void> finish();
    // Ends the connection and every wait at once.
    void abort();
    bool isOpen() const { return m_socket->state() == QLocalSocket::ConnectedState; }

Q_SIGNALS:
    // Some of what was written has gone out.
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
    qsizetype m_searchedBytes = 0; // this much of the buffer's start has no line end
    std::deque<QJsonObject> m_ready;
    bool m_gone = false;  // the other end, or this one, has closed the connection
    bool m_ended = false; // no more objects will come
    std::optional<ResumeOnce<std::optional<QJsonObject>>> m_waiter;
    std::optional<ResumeOnce<bool>> m_finished;
};

} // namespace veldmark
