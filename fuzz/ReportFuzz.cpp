// The report's redactor: a secret between any two texts is not in what comes out, nor is a
// character of the redactor's own. A byte 0xFF separates the texts.
#include "fuzz/Require.h"

#include "report/KnownSecrets.h"
#include "report/Redactor.h"

using namespace veldmark;

namespace {

// A secret as it stands in a text, and the part of it that must not be in the result.
struct Secret {
    QString written;
    QString telling;
};

const QList<Secret> &secrets()
{
    static const QList<Secret> all{
        {QStringLiteral("203.0.113.77:443"), QStringLiteral("203.0.113.77")},
        {QStringLiteral("[2001:db8:77::5%eth0]:9001"), QStringLiteral("2001:db8:77")},
        {QStringLiteral("::ffff:203.0.113.78"), QStringLiteral("203.0.113.78")},
        {QStringLiteral("www.bank77.example"), QStringLiteral("bank77")},
        {QStringLiteral("someone@mailhost77"), QStringLiteral("mailhost77")},
        {QStringLiteral("$0123456789ABCDEF0123456789ABCDEF01234567~Relay77"),
         QStringLiteral("ABCDEF0123")},
        {QStringLiteral("/home/dora77/papers77/x"), QStringLiteral("papers77")},
        {QStringLiteral("alice77"), QStringLiteral("alice77")},
        {QStringLiteral("https://a/b77c"), QStringLiteral("b77c")},
        {QStringLiteral("de:ad:be:ef:77:01"), QStringLiteral("be:ef:77")},
        {QStringLiteral("obfs4 198.51.100.77:443 cert=Q2VydDc3Q2VydDc3 iat-mode=0"),
         QStringLiteral("Q2VydDc3")},
        {QStringLiteral("0f1e2d3c4b5a69788796a5b4c3d2e1f00f1e2d3c4b5a69788796a5b4c3d2e1f0"),
         QStringLiteral("5a69788796")}};
    return all;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QList<QByteArray> parts = bytesOf(data, size).split('\xff');
    const QString before = QString::fromUtf8(parts.value(0));
    const QString after = QString::fromUtf8(parts.value(1));
    static const KnownSecrets known{QStringLiteral("/home/owner"),
                                    {},
                                    {QStringLiteral("alice77")},
                                    {secrets()[10].written},
                                    {}};
    Redactor alone(known);
    const QString around = alone.redacted(before + u' ' + after);
    QString all;
    for (const Secret &secret : secrets())
        all += before + u' ' + secret.written + u' ' + after + u'\n';
    Redactor redactor(known);
    const QString shown = redactor.redacted(all);
    for (const Secret &secret : secrets()) {
        // The input itself may have it as a part of another word.
        if (!around.contains(secret.telling, Qt::CaseInsensitive))
            REQUIRE(!shown.contains(secret.telling, Qt::CaseInsensitive));
    }
    for (const QChar c : shown)
        REQUIRE(!StandIns::isStandIn(c));
    return 0;
}
