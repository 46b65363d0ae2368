#include "bridges/TCPProbe.h"

#include "base/ResumeOnce.h"

#include <QHostAddress>
#include <QNetworkProxy>
#include <QTcpSocket>

#include <memory>

namespace veldmark::TCPProbe {

namespace {

using Outcome = std::optional<Clock::TimePoint>; // when the connection was established

QCoro::Task<void> endAfter(std::chrono::milliseconds limit, Clock *clock, ResumeOnce<Outcome> ended)
{
    co_await clock->sleep(limit);
    ended.complete(std::nullopt);
}

} // namespace

QCoro::Task<std::optional<ConnectTime>> connectTime(QString host, quint16 port,
                                                    std::chrono::milliseconds limit, Clock *clock)
{
    const QHostAddress address(host);
    if (address.isNull())
        co_return std::nullopt;

    const ResumeOnce<Outcome> ended;
    const Clock::TimePoint start = clock->now();
    Outcome stood;
    {
        const auto socket = std::make_unique<QTcpSocket>();
        socket->setProxy(QNetworkProxy::NoProxy);
        QObject::connect(socket.get(), &QTcpSocket::connected,
                         [ended, clock] { ended.complete(clock->now()); });
        QObject::connect(socket.get(), &QTcpSocket::errorOccurred,
                         [ended] { ended.complete(std::nullopt); });
        socket->connectToHost(address, port);
        const QCoro::Task<void> timeLimit = endAfter(limit, clock, ended);
        stood = co_await ended;
        socket->abort();
    }
    if (!stood)
        co_return std::nullopt;
    co_return std::optional<ConnectTime>(*stood - start);
}

} // namespace veldmark::TCPProbe
