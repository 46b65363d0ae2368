#pragma once

#include <QTcpServer>
#include <QTcpSocket>

// A SOCKS5 proxy on a free port of the loopback that sends every connection to one local port,
// for any destination, and records the requests. It supports only clients without authentication.
class SocksProxy : public QObject {
    Q_OBJECT
public:
    explicit SocksProxy(quint16 target);

    quint16 port() const { return m_server.serverPort(); }

    QList<QByteArray> methods; // the authentication methods that each client offered
    QList<int> addressTypes;   // ATYP: 1 IPv4, 3 name, 4 IPv6
    QList<QByteArray> hosts;   // as sent: the name or the address bytes
    QList<quint16> ports;
    int connections = 0;
    bool isSilent = false; // accepts, then sends nothing
    char reply = 0;        // of the request; 0 is success

private:
    void read(QTcpSocket *client);

    QTcpServer m_server;
    quint16 m_target;
};
