#include "base/TorPassword.h"

#include <QCryptographicHash>
#include <QRandomGenerator>

namespace veldmark {

namespace {

constexpr int clearBytes = 32;
constexpr qsizetype saltBytes = 8;
constexpr char countCode = 0x60;
constexpr qsizetype hashedBytes = qsizetype(16 + (countCode & 15)) << ((countCode >> 4) + 6);
constexpr qsizetype prefixLength = 3; // "16:"

QByteArray randomBytes(qsizetype count)
{
    QByteArray bytes(count, Qt::Uninitialized);
    for (char &byte : bytes)
        byte = static_cast<char>(QRandomGenerator::system()->bounded(256));
    return bytes;
}

} // namespace

TorPassword TorPassword::random()
{
    const QByteArray clear = randomBytes(clearBytes).toHex();
    return {QString::fromLatin1(clear), hashOf(clear, randomBytes(saltBytes))};
}

QString TorPassword::hashOf(const QByteArray &clear, const QByteArray &salt)
{
    const QByteArray round = salt + clear;
    QCryptographicHash hash(QCryptographicHash::Sha1);
    qsizetype left = hashedBytes; // Tor uses no more of a longer password, unlike the RFC
    for (; left >= round.size(); left -= round.size())
        hash.addData(round);
    hash.addData(round.first(left));
    return QLatin1String("16:")
        + QString::fromLatin1((salt + countCode + hash.result()).toHex().toUpper());
}

bool TorPassword::matches(const QByteArray &clear, const QString &hash)
{
    const QByteArray salt = QByteArray::fromHex(hash.mid(prefixLength).toLatin1()).left(saltBytes);
    return hashOf(clear, salt) == hash;
}

} // namespace veldmark
