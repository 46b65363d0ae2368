#include "instance/JsonLines.h"

#include <QJsonDocument>

namespace veldmark {

namespace {
// Limits what is read ahead: the excess of a fast sender waits in the socket's buffers.
constexpr qint64 chunkBytes = 64 * 1024;
constexpr std::size_t readyLimit = 64;
} // namespace

std::shared_ptr<JsonLines> JsonLines::over(QLocalSocket *socket)
{
    std::shared_ptr<JsonLines> lines(new JsonLines(socket));
    lines->read(); // reads what arrived before the signals were connected
    return lines;
}

JsonLines::JsonLines(QLocalSocket *socket) : m_socket(socket)
{
    m_socket->setParent(nullptr);
    m_socket->setReadBufferSize(chunkBytes);
    QObject::connect(socket, &QLocalSocket::readyRead, this, &JsonLines::read);
    QObject::connect(socket, &QLocalSocket::bytesWritten, this, &JsonLines::sent);
    QObject::connect(socket, &QLocalSocket::disconnected, this, &JsonLines::onDisconnected);
}

// A socket emits disconnected() when it is destroyed; this object must not receive that.
JsonLines::~JsonLines()
{
    m_socket->disconnect(this);
}

// Takes as many lines as there is room for; next() calls again for the others.
void JsonLines::read()
{
    while (!m_ended && m_ready.size() < readyLimit) {
        const qsizetype lineEnd = m_buffer.indexOf('\n', m_searchedBytes);
        if (lineEnd >= 0) {
            const QJsonDocument document = QJsonDocument::fromJson(m_buffer.left(lineEnd));
            m_buffer.remove(0, lineEnd + 1);
            m_searchedBytes = 0;
            if (document.isObject())
                give(document.object());
            else
                end();
            continue;
        }
        m_searchedBytes = m_buffer.size();
        const QByteArray chunk = m_gone || !hasBytes() ? QByteArray() : m_socket->read(chunkBytes);
        if (m_searchedBytes > lineLimitBytes || (chunk.isEmpty() && m_gone))
            end();
        else if (chunk.isEmpty())
            return;
        m_buffer += chunk;
    }
}

// A closed socket counts as open for a while, and prints a warning when it is read then.
bool JsonLines::hasBytes() const
{
    return m_socket->isOpen() && m_socket->bytesAvailable() > 0;
}

void JsonLines::end()
{
    m_ended = true;
    m_buffer.clear();
    give(std::nullopt);
}

void JsonLines::onDisconnected()
{
    if (!m_gone && hasBytes())
        m_buffer += m_socket->readAll(); // limited by the socket's own buffer
    m_gone = true;
    read();
    if (m_finished)
        m_finished->complete(true);
}

// Passes an object, or the end, to the waiting caller, or stores the object for the next wait.
void JsonLines::give(const std::optional<QJsonObject> &object)
{
    if (m_waiter) {
        m_waiter->complete(object);
        m_waiter.reset();
    } else if (object) {
        m_ready.push_back(*object);
    }
}

QCoro::Task<std::optional<QJsonObject>> JsonLines::next()
{
    const auto self = shared_from_this(); // keeps this object during the wait
    if (!m_ready.empty()) {
        const QJsonObject object = m_ready.front();
        m_ready.pop_front();
        read();
        co_return object;
    }
    if (m_ended)
        co_return std::nullopt;
    const ResumeOnce<std::optional<QJsonObject>> arrival;
    m_waiter = arrival;
    const std::optional<QJsonObject> object = co_await arrival;
    co_return object;
}

void JsonLines::write(const QJsonObject &object)
{
    if (!isOpen())
        return;
    m_socket->write(QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n');
    m_socket->flush();
}

QCoro::Task<void> JsonLines::finish()
{
    // keeps this object, and its unsent bytes, during the wait
    const auto self = shared_from_this();
    m_socket->disconnectFromServer();
    if (m_socket->state() == QLocalSocket::UnconnectedState)
        co_return;
    const ResumeOnce<bool> finished;
    m_finished = finished;
    co_await finished;
}

void JsonLines::abort()
{
    m_socket->abort();
    m_ready.clear();
    onDisconnected();
}

} // namespace veldmark
