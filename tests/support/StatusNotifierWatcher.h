#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>

namespace veldmark {

// Replaces the desktop's service for tray icons, with or without a panel that shows them.
class StatusNotifierWatcher final : public QDBusVirtualObject {
public:
    explicit StatusNotifierWatcher(const QDBusConnection &bus, bool hasHost = true)
        : m_bus(bus),
          m_hasHost(hasHost)
    {
        m_bus.registerVirtualObject(path(), this);
        m_bus.registerService(name());
    }
    ~StatusNotifierWatcher() override
    {
        m_bus.unregisterService(name());
        m_bus.unregisterObject(path());
    }

    void setHost(bool on)
    {
        m_hasHost = on;
        m_bus.send(
            QDBusMessage::createSignal(path(), name(),
                                       on ? QStringLiteral("StatusNotifierHostRegistered")
                                          : QStringLiteral("StatusNotifierHostUnregistered")));
    }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        if (message.member() == QLatin1String("Get"))
            connection.send(message.createReply(QVariant::fromValue(QDBusVariant(m_hasHost))));
        else if (message.member() == QLatin1String("RegisterStatusNotifierItem"))
            connection.send(message.createReply());
        else
            return false;
        return true;
    }

private:
    static QString name() { return QStringLiteral("org.kde.StatusNotifierWatcher"); }
    static QString path() { return QStringLiteral("/StatusNotifierWatcher"); }

    QDBusConnection m_bus;
    bool m_hasHost;
};

} // namespace veldmark
