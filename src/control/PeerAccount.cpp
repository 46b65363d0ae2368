#include "control/PeerAccount.h"

#include <QFile>
#include <QList>
#include <QString>

#include <cstring>

namespace veldmark {

namespace {

// 127.0.0.1 as the kernel prints it: the number in this computer's byte order.
QByteArray localEnd(quint16 port)
{
    const char address[] = {127, 0, 0, 1};
    quint32 number = 0;
    static_assert(sizeof(address) == sizeof(number));
    std::memcpy(&number, address, sizeof(number));
    return QByteArray::number(number, 16).rightJustified(8, '0').toUpper() + ':'
        + QByteArray::number(port, 16).rightJustified(4, '0').toUpper();
}

} // namespace

PeerAccount PeerAccount::in(const QByteArray &table, quint16 port, quint16 own)
{
    const QByteArray ends = ' ' + localEnd(port) + ' ' + localEnd(own) + ' ';
    const qsizetype at = table.indexOf(ends);
    if (at < 0)
        return {};
    // STATE QUEUES TIMER RETRANSMITS UID TIMEOUT INODE …
    const QByteArray rest = table.mid(at + ends.size(), 200).simplified();
    const QList<QByteArray> fields = rest.split(' ');
    bool isNumber = false;
    const uid_t user = fields.value(4).toUInt(&isNumber);
    if (!isNumber || fields.size() < 7)
        return {};
    if (fields.value(6) == "0") // no process has accepted it yet, so the account means nothing
        return {Kind::Waiting, 0};
    return {Kind::Accepted, user};
}

PeerAccount PeerAccount::ask(quint16 port, quint16 own)
{
    QFile table(QStringLiteral("/proc/net/tcp"));
    return table.open(QIODevice::ReadOnly) ? in(table.readAll(), port, own) : PeerAccount{};
}

} // namespace veldmark
