#include "checks/ResolvedBus.h"

#include "checks/TimeLimit.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>

#include <net/if.h>

#include <atomic>
#include <thread>

namespace veldmark {

namespace {

const QString service = QStringLiteral("org.freedesktop.resolve1");
const QString managerPath = QStringLiteral("/org/freedesktop/resolve1");

// One connection of its own per reading, closed with the last copy.
struct Bus {
    explicit Bus(QDBusConnection opened) : connection(std::move(opened)) {}
    Bus(const Bus &) = delete;
    Bus &operator=(const Bus &) = delete;
    ~Bus()
    {
        const QString name = connection.name();
        connection = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus(name);
    }

    QDBusConnection connection;
};
using SharedBus = std::shared_ptr<Bus>;
using Answer = ResumeOnce<std::optional<ResolvedState>>;

// Connecting waits for the bus to say hello, hence the thread.
void connectToBus(const QString &address, const ResumeOnce<SharedBus> &connected)
{
    static std::atomic<int> count = 0;
    const QString name = QStringLiteral("veldmark-resolved-%1").arg(++count);
    const QDBusConnection connection = address.isEmpty()
        ? QDBusConnection::connectToBus(QDBusConnection::SystemBus, name)
        : QDBusConnection::connectToBus(address, name);
    connected.complete(std::make_shared<Bus>(connection));
}

QDBusMessage request(const QString &path, const QString &interface, const QString &member,
                     const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, member);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    return message;
}

QCoro::Task<QDBusMessage> call(SharedBus bus, QDBusMessage message)
{
    const ResumeOnce<QDBusMessage> replied;
    // The call ends by itself within its own limit, so the watcher always reports.
    auto *watcher = new QDBusPendingCallWatcher(
        bus->connection.asyncCall(message, static_cast<int>(ResolvedBus::limit.count())));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher, replied] {
        replied.complete(watcher->reply());
        watcher->deleteLater();
    });
    const QDBusMessage reply = co_await replied;
    co_return reply;
}

QCoro::Task<std::optional<QVariantMap>> properties(SharedBus bus, QString path, QString interface)
{
    auto calling = call(bus, request(path, QStringLiteral("org.freedesktop.DBus.Properties"),
                                     QStringLiteral("GetAll"), {interface}));
    const QDBusMessage message = co_await calling;
    const QDBusReply<QVariantMap> reply(message);
    if (!reply.isValid())
        co_return std::nullopt;
    co_return reply.value();
}

struct Interface {
    int index;
    QString name;
};

std::vector<Interface> networkInterfaces()
{
    std::vector<Interface> list;
    struct if_nameindex *const names = ::if_nameindex();
    if (!names)
        return list;
    for (const struct if_nameindex *entry = names; entry->if_index != 0; ++entry)
        list.push_back({static_cast<int>(entry->if_index), QString::fromLocal8Bit(entry->if_name)});
    ::if_freenameindex(names);
    return list;
}

// Nothing for an interface that resolved doesn't manage, such as the loopback.
QCoro::Task<std::optional<ResolvedLink>> readLink(SharedBus bus, Interface interface)
{
    auto asking = call(bus, request(managerPath, QStringLiteral("org.freedesktop.resolve1.Manager"),
                                    QStringLiteral("GetLink"), {interface.index}));
    const QDBusMessage message = co_await asking;
    const QDBusReply<QDBusObjectPath> path(message);
    if (!path.isValid())
        co_return std::nullopt;
    auto reading = properties(bus, path.value().path(), QStringLiteral("org.freedesktop.resolve1.Link"));
    const std::optional<QVariantMap> values = co_await reading;
    if (!values)
        co_return std::nullopt;
    co_return ResolvedLink::fromProperties(interface.name, *values);
}

QCoro::Task<void> collect(QString busAddress, Answer answer)
{
    const ResumeOnce<SharedBus> connected;
    std::thread([busAddress, connected] { connectToBus(busAddress, connected); }).detach();
    const SharedBus bus = co_await connected;
    if (!bus->connection.isConnected() || answer.isDone()) {
        answer.complete(std::nullopt);
        co_return;
    }
    auto reading = properties(bus, managerPath, QStringLiteral("org.freedesktop.resolve1.Manager"));
    const std::optional<QVariantMap> values = co_await reading;
    if (!values) {
        answer.complete(std::nullopt);
        co_return;
    }
    ResolvedState state = ResolvedState::fromProperties(*values);

    // All links are asked at once; a container host has hundreds.
    std::vector<QCoro::Task<std::optional<ResolvedLink>>> links;
    for (const Interface &interface : networkInterfaces())
        links.push_back(readLink(bus, interface));
    for (auto &task : links) {
        std::optional<ResolvedLink> link = co_await task;
        if (link)
            state.links.push_back(std::move(*link));
    }
    answer.complete(std::move(state));
}

} // namespace

ResolvedBus::ResolvedBus(Clock &clock, QString busAddress)
    : m_clock(clock), m_busAddress(std::move(busAddress))
{
}

QCoro::Task<std::optional<ResolvedState>> ResolvedBus::read()
{
    const Answer answer;
    completeAfter<std::optional<ResolvedState>>(&m_clock, limit, answer, std::nullopt);
    collect(m_busAddress, answer);
    std::optional<ResolvedState> state = co_await answer;
    co_return state;
}

} // namespace veldmark
