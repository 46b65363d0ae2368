#include "CheckService.h"

#include <QFile>
#include <QProcess>
#include <QSslCertificate>
#include <QSslKey>

namespace {
const QString ec = QStringLiteral("ec_paramgen_curve:prime256v1");

QByteArray content(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no file %s", qPrintable(path));
    return file.readAll();
}
} // namespace

TestCertificates::TestCertificates()
{
    run({QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-newkey"),
         QStringLiteral("ec"), QStringLiteral("-pkeyopt"), ec, QStringLiteral("-nodes"),
         QStringLiteral("-keyout"), path(QStringLiteral("ca.key")), QStringLiteral("-out"),
         path(QStringLiteral("ca.pem")), QStringLiteral("-subj"),
         QStringLiteral("/CN=Test Authority"), QStringLiteral("-days"), QStringLiteral("30")});
}

QSslConfiguration TestCertificates::server(const QString &hosts, int days)
{
    const QString name = QStringLiteral("server%1").arg(++m_count);
    QFile extensions(path(name + QStringLiteral(".ext")));
    if (!extensions.open(QIODevice::WriteOnly))
        qFatal("cannot write");
    extensions.write("subjectAltName=" + hosts.toLatin1() + '\n');
    extensions.close();
    run({QStringLiteral("req"), QStringLiteral("-new"), QStringLiteral("-newkey"),
         QStringLiteral("ec"), QStringLiteral("-pkeyopt"), ec, QStringLiteral("-nodes"),
         QStringLiteral("-keyout"), path(name + QStringLiteral(".key")), QStringLiteral("-out"),
         path(name + QStringLiteral(".csr")), QStringLiteral("-subj"), QStringLiteral("/CN=Test")});
    run({QStringLiteral("x509"), QStringLiteral("-req"), QStringLiteral("-in"),
         path(name + QStringLiteral(".csr")), QStringLiteral("-CA"), path(QStringLiteral("ca.pem")),
         QStringLiteral("-CAkey"), path(QStringLiteral("ca.key")),
         QStringLiteral("-CAcreateserial"), QStringLiteral("-days"), QString::number(days),
         QStringLiteral("-extfile"), extensions.fileName(), QStringLiteral("-out"),
         path(name + QStringLiteral(".pem"))});
    return load(name);
}

QSslConfiguration TestCertificates::selfSigned(const QString &hosts)
{
    const QString name = QStringLiteral("self%1").arg(++m_count);
    run({QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-newkey"),
         QStringLiteral("ec"), QStringLiteral("-pkeyopt"), ec, QStringLiteral("-nodes"),
         QStringLiteral("-keyout"), path(name + QStringLiteral(".key")), QStringLiteral("-out"),
         path(name + QStringLiteral(".pem")), QStringLiteral("-subj"), QStringLiteral("/CN=Test"),
         QStringLiteral("-addext"), QStringLiteral("subjectAltName=") + hosts,
         QStringLiteral("-days"), QStringLiteral("30")});
    return load(name);
}

QSslConfiguration TestCertificates::client() const
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.addCaCertificates(
        QSslCertificate::fromPath(m_folder.filePath(QStringLiteral("ca.pem"))));
    return configuration;
}

void TestCertificates::run(const QStringList &arguments) const
{
    QProcess process;
    process.start(QStringLiteral("openssl"), arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("openssl: %s", process.readAllStandardError().constData());
}

QSslConfiguration TestCertificates::load(const QString &name) const
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(
        QSslCertificate(content(path(name + QStringLiteral(".pem")))));
    configuration.setPrivateKey(QSslKey(content(path(name + QStringLiteral(".key"))), QSsl::Ec));
    configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
    return configuration;
}

CheckService::CheckService(const QSslConfiguration &tls)
{
    m_server.setSslConfiguration(tls);
    if (!m_server.listen(QHostAddress::LocalHost))
        qFatal("cannot listen");
    connect(&m_server, &QSslServer::startedEncryptionHandshake, this, [this] { ++connections; });
    connect(&m_server, &QSslServer::pendingConnectionAvailable, this, [this] {
        while (auto *socket = qobject_cast<QSslSocket *>(m_server.nextPendingConnection())) {
            connect(socket, &QSslSocket::disconnected, this, [this] { ++closed; });
            const auto head = std::make_shared<QByteArray>();
            const auto read = [this, socket, head] {
                *head += socket->readAll();
                if (!head->endsWith("\r\n\r\n"))
                    return;
                requests.append(*head);
                head->clear();
                if (respond)
                    respond(socket);
            };
            connect(socket, &QSslSocket::readyRead, this, read);
            read();
        }
    });
}

CheckService::Respond CheckService::answer(const QByteArray &status, const QByteArray &body)
{
    return [status, body](QSslSocket *socket) {
        socket->write("HTTP/1.1 " + status
                      + "\r\nContent-Type: application/json\r\nContent-Length: "
                      + QByteArray::number(body.size()) + "\r\n\r\n" + body);
    };
}

CheckService::Respond CheckService::goodAnswer(bool isTor, const QByteArray &ip)
{
    return answer("200 OK",
                  "{\"IsTor\":" + QByteArray(isTor ? "true" : "false") + ",\"IP\":\"" + ip + "\"}");
}
