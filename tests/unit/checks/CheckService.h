#pragma once

#include <QSslConfiguration>
#include <QSslServer>
#include <QSslSocket>
#include <QTemporaryDir>

#include <functional>

// Certificates from an authority of the test's own, made with the openssl program.
class TestCertificates {
public:
    // `hosts` as in a certificate: "DNS:check.torproject.org,IP:127.0.0.1". Negative days: expired.
    TestCertificates();
    QSslConfiguration server(const QString &hosts, int days = 30);
    // A self-signed certificate.
    QSslConfiguration selfSigned(const QString &hosts);
    // The configuration of a client that trusts this authority besides the system's.
    QSslConfiguration client() const;

private:
    void run(const QStringList &arguments) const;
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QSslConfiguration load(const QString &name) const;

    QTemporaryDir m_folder;
    int m_count = 0;
};

// An HTTPS service on a free loopback port. The test decides the answer to each request.
class CheckService : public QObject {
    Q_OBJECT
public:
    using Respond = std::function<void(QSslSocket *)>;

    explicit CheckService(const QSslConfiguration &tls);

    quint16 port() const { return m_server.serverPort(); }
    Respond respond;
    QList<QByteArray> requests; // whole heads
    int connections = 0;        // accepted TCP connections
    int closed = 0;

    static Respond answer(const QByteArray &status, const QByteArray &body);
    static Respond goodAnswer(bool isTor, const QByteArray &ip);

private:
    QSslServer m_server;
};
