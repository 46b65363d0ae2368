#include "ResolvedService.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QFile>

#include <net/if.h>
#include <signal.h>
#include <sys/socket.h>

namespace {
const QString service = QStringLiteral("org.freedesktop.resolve1");
const QString managerPath = QStringLiteral("/org/freedesktop/resolve1");
const QString linkPath = QStringLiteral("/org/freedesktop/resolve1/link/_31");
} // namespace

// The daemon's D-Bus structures. They are types, because Qt marshals by type.
struct LinkServer {
    int family;
    QByteArray address;
};
struct LinkServerEx : LinkServer {
    quint16 port;
    QString name;
};
struct Server : LinkServer {
    int index;
};
struct ServerEx : LinkServerEx {
    int index;
};
struct LinkDomain {
    QString name;
    bool routeOnly;
};
Q_DECLARE_METATYPE(LinkServer)
Q_DECLARE_METATYPE(LinkServerEx)
Q_DECLARE_METATYPE(Server)
Q_DECLARE_METATYPE(ServerEx)
Q_DECLARE_METATYPE(LinkDomain)

#define MARSHAL(Type, fields)                                                                      \
    QDBusArgument &operator<<(QDBusArgument &a, const Type &v)                                     \
    {                                                                                              \
        a.beginStructure();                                                                        \
        fields;                                                                                    \
        a.endStructure();                                                                          \
        return a;                                                                                  \
    }                                                                                              \
    const QDBusArgument &operator>>(const QDBusArgument &a, Type &)                                \
    {                                                                                              \
        return a;                                                                                  \
    }
MARSHAL(LinkServer, a << v.family << v.address)
MARSHAL(LinkServerEx, a << v.family << v.address << v.port << v.name)
MARSHAL(Server, a << v.index << v.family << v.address)
MARSHAL(ServerEx, a << v.index << v.family << v.address << v.port << v.name)
MARSHAL(LinkDomain, a << v.name << v.routeOnly)
#undef MARSHAL

PrivateBus::PrivateBus()
    : m_address(QStringLiteral("unix:path=") + m_folder.filePath(QStringLiteral("bus")))
{
    QFile configuration(m_folder.filePath(QStringLiteral("bus.conf")));
    if (!configuration.open(QIODevice::WriteOnly))
        qFatal("cannot write");
    configuration.write("<busconfig><listen>" + m_address.toUtf8()
                        + "</listen><auth>EXTERNAL</auth><policy context='default'>"
                          "<allow send_destination='*' eavesdrop='true'/><allow eavesdrop='true'/>"
                          "<allow own='*'/><allow user='*'/></policy></busconfig>");
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_address.toUtf8());
}

PrivateBus::~PrivateBus()
{
    stop();
}

void PrivateBus::start()
{
    if (m_daemon.state() != QProcess::NotRunning)
        return;
    QFile::remove(m_folder.filePath(QStringLiteral("bus")));
    m_daemon.start(
        QStringLiteral("dbus-daemon"),
        {QStringLiteral("--config-file=") + m_folder.filePath(QStringLiteral("bus.conf")),
         QStringLiteral("--nofork"), QStringLiteral("--print-address=1")});
    while (!m_daemon.canReadLine()) {
        if (!m_daemon.waitForReadyRead())
            qFatal("dbus-daemon: %s", m_daemon.readAllStandardError().constData());
    }
    m_daemon.readLine();
}

void PrivateBus::stop()
{
    m_daemon.kill();
    m_daemon.waitForFinished();
}

void PrivateBus::freeze()
{
    ::kill(static_cast<pid_t>(m_daemon.processId()), SIGSTOP);
}

ResolvedService::ResolvedService(const QString &busAddress)
    : m_name(QStringLiteral("service")),
      m_connection(QDBusConnection::connectToBus(busAddress, m_name))
{
    qDBusRegisterMetaType<QList<LinkServer>>();
    qDBusRegisterMetaType<QList<LinkServerEx>>();
    qDBusRegisterMetaType<QList<Server>>();
    qDBusRegisterMetaType<QList<ServerEx>>();
    qDBusRegisterMetaType<QList<LinkDomain>>();
    qDBusRegisterMetaType<LinkServer>();
    qDBusRegisterMetaType<LinkServerEx>();
    qDBusRegisterMetaType<Server>();
    qDBusRegisterMetaType<ServerEx>();
    qDBusRegisterMetaType<LinkDomain>();
    if (!m_connection.registerVirtualObject(managerPath, this, QDBusConnection::SubPath)
        || !m_connection.registerService(service))
        qFatal("cannot serve");
}

ResolvedService::~ResolvedService()
{
    QDBusConnection::disconnectFromBus(m_name);
}

QVariantMap ResolvedService::manager() const
{
    const QByteArray router = QByteArray::fromHex("c0a84d01");
    const QByteArray vpn = QByteArray::fromHex("20010db8000000000000000000000053");
    const QByteArray fallback = QByteArray::fromHex("01010101");
    const int lo = static_cast<int>(::if_nametoindex("lo"));
    QVariantMap map{
        {QStringLiteral("DNS"),
         QVariant::fromValue(QList<Server>{{{AF_INET, router}, 0}, {{AF_INET6, vpn}, lo}})},
        {QStringLiteral("FallbackDNS"),
         QVariant::fromValue(QList<Server>{{{AF_INET, fallback}, 0}})},
        {QStringLiteral("ResolvConfMode"), QStringLiteral("stub")},
    };
    if (withPorts) {
        map.insert(QStringLiteral("DNSEx"),
                   QVariant::fromValue(QList<ServerEx>{
                       {{{AF_INET, router}, 0, {}}, 0},
                       {{{AF_INET6, vpn}, 853, QStringLiteral("dns.example")}, lo}}));
        map.insert(QStringLiteral("FallbackDNSEx"),
                   QVariant::fromValue(QList<ServerEx>{{{{AF_INET, fallback}, 0, {}}, 0}}));
    }
    return map;
}

QVariantMap ResolvedService::link() const
{
    const QByteArray vpn = QByteArray::fromHex("20010db8000000000000000000000053");
    QVariantMap map{
        {QStringLiteral("DNS"), QVariant::fromValue(QList<LinkServer>{{AF_INET6, vpn}})},
        {QStringLiteral("Domains"),
         QVariant::fromValue(QList<LinkDomain>{{QStringLiteral("corp.example"), false},
                                               {QStringLiteral("int.example"), true}})},
        {QStringLiteral("DefaultRoute"), false},
        {QStringLiteral("ScopesMask"), QVariant::fromValue<qulonglong>(scopes)},
    };
    if (withPorts)
        map.insert(QStringLiteral("DNSEx"),
                   QVariant::fromValue(
                       QList<LinkServerEx>{{{AF_INET6, vpn}, 853, QStringLiteral("dns.example")}}));
    return map;
}

bool ResolvedService::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    ++calls;
    if (isSilent) {
        message.setDelayedReply(true);
        m_unanswered = message;
        return true;
    }
    if (message.member() == u"GetLink") {
        const int index = message.arguments().constFirst().toInt();
        connection.send(
            index == static_cast<int>(::if_nametoindex("lo"))
                ? message.createReply(QVariant::fromValue(QDBusObjectPath(linkPath)))
                : message.createErrorReply(QStringLiteral("org.freedesktop.resolve1.NoSuchLink"),
                                           QStringLiteral("Link not known")));
        return true;
    }
    if (message.member() == u"GetAll") {
        connection.send(message.createReply(message.path() == managerPath ? manager() : link()));
        return true;
    }
    return false;
}

void ResolvedService::answerLate()
{
    m_connection.send(m_unanswered.createReply(manager()));
}

bool ResolvedService::hasListener() const
{
    return m_connection.interface()->isServiceRegistered(m_unanswered.service());
}
