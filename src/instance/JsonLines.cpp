#include "instance/JsonLines.h"

#include <QJsonDocument>

namespace veldmark {

std::shared_ptr<JsonLines> JsonLines::over(QLocalSocket *socket)
{
    std::shared_ptr<JsonLines> lines(new JsonLines(socket));
    lines->read(); // what came before anybody listened
    return lines;
}

JsonLines::JsonLines(QLocalSocket *socket) : m_socket(socket)
{
    m_socket->setParent(nullptr);
    QObject::connect(socket, &QLocalSocket::readyRead, this, &JsonLines::read);
    QObject::connect(socket, &QLocalSocket::disconnected, this, [this] {
        read();
        give(std::nullopt);
    });
}

void JsonLines::read()
{
    if (m_ended)
        return;
    m_buffer += m_socket->readAll();
    qsizetype begin = 0;
    for (qsizetype end; (end = m_buffer.indexOf('\n', begin)) >= 0; begin = end + 1) {
        const QJsonDocument document = QJsonDocument::fromJson(m_buffer.mid(begin, end - begin));
        if (!document.isObject()) {
            give(std::nullopt);
            return;
        }
        give(document.object());
    }
    m_buffer.remove(0, begin);
    if (m_buffer.size() > lineLimitBytes)
        give(std::nullopt);
}

// Hands an object, or the end, to whoever waits, or keeps it for the next wait.
void JsonLines::give(std::optional<QJsonObject> object)
{
    if (m_ended)
        return;
    if (!object) {
        m_ended = true;
        m_buffer.clear();
    }
    if (m_waiter && m_waiter->complete(object)) {
        m_waiter.reset();
        return;
    }
    if (object)
        m_ready.push_back(*object);
}

QCoro::Task<std::optional<QJsonObject>> JsonLines::next()
{
    const auto self = shared_from_this(); // lives as long as the wait
    if (!m_ready.empty()) {
        const QJsonObject object = m_ready.front();
        m_ready.pop_front();
        co_return object;
    }
    if (m_ended || !isOpen())
        co_return std::nullopt;
    const ResumeOnce<std::optional<QJsonObject>> arrival;
    m_waiter = arrival;
    co_return co_await arrival;
}

void JsonLines::write(const QJsonObject &object)
{
    if (!isOpen())
        return;
    m_socket->write(QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n');
    m_socket->flush();
}

} // namespace veldmark
