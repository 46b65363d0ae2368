// A desktop's tray for programs: accepts every icon and shows none. Prints "ready" once it is on
// the session bus, so that later programs find it.
#include <QCoreApplication>
#include <QDBusConnection>
#include <QTextStream>

class TrayHost : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems MEMBER m_items)
    Q_PROPERTY(bool IsStatusNotifierHostRegistered MEMBER m_present)
    Q_PROPERTY(int ProtocolVersion MEMBER m_version)

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString &service)
    {
        m_items << service;
        Q_EMIT StatusNotifierItemRegistered(service);
    }
    void RegisterStatusNotifierHost(const QString &) { }

Q_SIGNALS:
    void StatusNotifierItemRegistered(const QString &service);

private:
    QStringList m_items;
    bool m_present = true;
    int m_version = 0;
};

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    TrayHost host;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), &host,
                            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals
                                | QDBusConnection::ExportAllProperties)
        || !bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher")))
        return 1;
    QTextStream(stdout) << "ready" << Qt::endl;
    return QCoreApplication::exec();
}

#include "TrayHost.moc"
