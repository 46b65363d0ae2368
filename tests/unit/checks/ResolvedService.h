#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTemporaryDir>

#include <optional>

// A message bus that replaces the system bus in this process. One per process: the D-Bus
// library looks for the system bus's address only once.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();
    void start(); // does nothing while it runs
    void stop();
    // Freezes the daemon: it keeps its socket and sends nothing.
    void freeze();
    QString address() const { return m_address; }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
};

// Answers on the bus as systemd-resolved does, with the same types. One link: the loopback, so that
// the test needs no network interface of its own.
class ResolvedService : public QDBusVirtualObject {
    Q_OBJECT
public:
    explicit ResolvedService(const QString &busAddress);
    ~ResolvedService() override;

    bool isSilent = false;
    bool withPorts = true; // the daemon is new enough for "DNSEx"
    quint64 scopes = 3;    // the link's "ScopesMask"
    int calls = 0;

    void answerLate();        // the calls that it has not answered
    bool hasListener() const; // whether the caller of that is still on the bus

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    QVariantMap manager() const;
    QVariantMap link() const;

    QString m_name;
    QDBusConnection m_connection;
    QDBusMessage m_unanswered;
};
