#include "checks/ResolvedBus.h"

#include "checks/TimeLimit.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>

#include <net/if.h>

#include <atomic>
#include <thread>

namespace veldmark {

namespace {

const QString managerPath = QStringLiteral("/org/freedesktop/resolve1");

using Answer = ResumeOnce<std::optional<ResolvedState>>;

// Runs only on the reading's own thread: even connecting and disconnecting wait for the bus, and
// would block all other D-Bus use on their thread.
class BusConnection {
public:
    explicit BusConnection(Answer answer) : m_answer(std::move(answer)), m_bus(connect()) { }
    ~BusConnection()
    {
        const QString name = m_bus.name();
        m_bus = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus(name);
    }
    BusConnection(const BusConnection &) = delete;
    BusConnection &operator=(const BusConnection &) = delete;

    std::optional<ResolvedState> read() const
    {
        const auto manager = properties(managerPath,
                                        QStringLiteral("org.freedesktop.resolve1.Manager"));
        if (!manager)
            return std::nullopt;
        ResolvedState state = ResolvedState::fromProperties(*manager);
        struct if_nameindex *const interfaces = ::if_nameindex();
        for (const auto *entry = interfaces; entry && entry->if_index != 0; ++entry) {
            const auto link = linkProperties(static_cast<int>(entry->if_index));
            if (link)
                state.links.push_back(
                    ResolvedLink::fromProperties(QString::fromLocal8Bit(entry->if_name), *link));
        }
        if (interfaces)
            ::if_freenameindex(interfaces);
        return state;
    }

private:
    // Not by address: when the bus does not answer the hello message, Qt drops such a connection in
    // a way for which the D-Bus library aborts the program.
    static QDBusConnection connect()
    {
        static std::atomic<int> count = 0;
        return QDBusConnection::connectToBus(QDBusConnection::SystemBus,
                                             QStringLiteral("veldmark-resolved-%1").arg(++count));
    }

    QDBusMessage call(const QString &path, const QString &interface, const QString &member,
                      const QVariantList &arguments) const
    {
        // The wait is over: more requests would only keep the thread busy.
        if (m_answer.isDone() || !m_bus.isConnected())
            return {};
        QDBusMessage message = QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.resolve1"), path, interface, member);
        message.setArguments(arguments);
        message.setAutoStartService(false);
        return m_bus.call(message, QDBus::Block, static_cast<int>(ResolvedBus::limit.count()));
    }

    std::optional<QVariantMap> properties(const QString &path, const QString &interface) const
    {
        const QDBusReply<QVariantMap> reply(call(path,
                                                 QStringLiteral("org.freedesktop.DBus.Properties"),
                                                 QStringLiteral("GetAll"), {interface}));
        return reply.isValid() ? std::optional(reply.value()) : std::nullopt;
    }

    // Absent for an interface that resolved doesn't manage, such as the loopback.
    std::optional<QVariantMap> linkProperties(int index) const
    {
        const QDBusReply<QDBusObjectPath> path(
            call(managerPath, QStringLiteral("org.freedesktop.resolve1.Manager"),
                 QStringLiteral("GetLink"), {index}));
        if (!path.isValid())
            return std::nullopt;
        return properties(path.value().path(), QStringLiteral("org.freedesktop.resolve1.Link"));
    }

    Answer m_answer;
    QDBusConnection m_bus;
};

void readAndComplete(const Answer &answer)
{
    std::optional<ResolvedState> state;
    {
        const BusConnection conversation(answer);
        state = conversation.read();
    }
    answer.complete(std::move(state));
}

} // namespace

QCoro::Task<std::optional<ResolvedState>> ResolvedBus::read()
{
    const Answer answer;
    completeAfter<std::optional<ResolvedState>>(&m_clock, limit, answer, std::nullopt);
    std::thread([answer] { readAndComplete(answer); }).detach();
    std::optional<ResolvedState> state = co_await answer;
    co_return state;
}

} // namespace veldmark
