#pragma once

#include <QDBusConnection>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace veldmark {

// A message bus for one test, with only the test's own services.
class SessionBus {
public:
    SessionBus()
    {
        QFile config(m_folder.filePath(QStringLiteral("bus.conf")));
        if (config.open(QIODevice::WriteOnly))
            config.write("<busconfig><type>session</type><listen>unix:dir="
                         + QFile::encodeName(m_folder.path())
                         + "</listen><policy context=\"default\"><allow send_destination=\"*\"/>"
                           "<allow receive_sender=\"*\"/><allow own=\"*\"/></policy></busconfig>");
        config.close();
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                        QStringLiteral("--config-file=") + config.fileName()});
        while (!m_address.endsWith(u'\n') && m_daemon.waitForReadyRead(30000))
            m_address += QString::fromUtf8(m_daemon.readAllStandardOutput());
        m_address = m_address.trimmed();
    }
    ~SessionBus()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }
    SessionBus(const SessionBus &) = delete;
    SessionBus &operator=(const SessionBus &) = delete;

    bool isRunning() const { return m_address.startsWith(QLatin1String("unix:")); }
    QByteArray address() const { return m_address.toUtf8(); }
    // A new connection at each call.
    QDBusConnection connection()
    {
        return QDBusConnection::connectToBus(m_address,
                                             QStringLiteral("test%1").arg(++m_connections));
    }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
    int m_connections = 0;
};

} // namespace veldmark
