#include "SocksProxy.h"

#include <QNetworkProxy>

SocksProxy::SocksProxy(quint16 target) : m_target(target)
{
    m_server.setProxy(QNetworkProxy::NoProxy);
    if (!m_server.listen(QHostAddress::LocalHost))
        qFatal("cannot listen");
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket *client = m_server.nextPendingConnection()) {
            ++connections;
            connect(client, &QTcpSocket::readyRead, this, [this, client] { read(client); });
        }
    });
}

void SocksProxy::read(QTcpSocket *client)
{
    if (isSilent)
        return;
    const QByteArray seen = client->peek(1024);
    if (!client->property("greeted").toBool()) {
        if (seen.size() < 2 || seen.size() < 2 + seen[1])
            return;
        methods.append(seen.mid(2, seen[1]));
        client->read(2 + seen[1]);
        client->setProperty("greeted", true);
        client->write(QByteArray::fromHex("0500"));
        return;
    }
    if (seen.size() < 7)
        return;
    const int type = seen[3];
    const int length = type == 1 ? 4 : type == 4 ? 16 : seen[4];
    const int start = type == 3 ? 5 : 4;
    if (seen.size() < start + length + 2)
        return;
    addressTypes.append(type);
    hosts.append(seen.mid(start, length));
    ports.append(static_cast<quint16>(static_cast<quint8>(seen[start + length]) << 8
                                      | static_cast<quint8>(seen[start + length + 1])));
    client->read(start + length + 2);
    client->disconnect(this);
    if (reply != 0) {
        QByteArray refusal = QByteArray::fromHex("05000001000000000000");
        refusal[1] = reply;
        client->write(refusal);
        client->disconnectFromHost();
        return;
    }
    auto *service = new QTcpSocket(client);
    service->setProxy(QNetworkProxy::NoProxy);
    connect(service, &QTcpSocket::connected, client,
            [client] { client->write(QByteArray::fromHex("05000001000000000000")); });
    connect(client, &QTcpSocket::readyRead, service,
            [client, service] { service->write(client->readAll()); });
    connect(service, &QTcpSocket::readyRead, client,
            [client, service] { client->write(service->readAll()); });
    connect(service, &QTcpSocket::disconnected, client, &QTcpSocket::disconnectFromHost);
    connect(client, &QTcpSocket::disconnected, service, &QTcpSocket::disconnectFromHost);
    service->connectToHost(QHostAddress::LocalHost, m_target);
}
