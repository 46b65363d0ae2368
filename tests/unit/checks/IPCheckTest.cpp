#include "checks/IPCheck.h"
#include "support/TestProgram.h"

#include <QRandomGenerator>
#include <QTest>

using namespace veldmark;

namespace {
// With single quotes for double ones, so that it can be read here.
QByteArray json(const char *text)
{
    return QByteArray(text).replace('\'', '"');
}
} // namespace

class IPCheckTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readsTheServicesAnswer_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("isTor");
        QTest::addColumn<QString>("ip");
        QTest::newRow("a Tor exit") << json("{'IsTor': true, 'IP': '203.0.113.7'}") << true
                                    << QStringLiteral("203.0.113.7");
        QTest::newRow("not Tor, IPv6")
            << json("{'IP':'2001:db8::1','IsTor':false}") << false << QStringLiteral("2001:db8::1");
        QTest::newRow("other keys")
            << json("{'IsTor':true,'x':[1,{'IP':2}],'IP':'203.0.113.7','isTor':1}") << true
            << QStringLiteral("203.0.113.7");
        QTest::newRow("white space round it")
            << QByteArray("\r\n {\"IsTor\":true,\"IP\":\"203.0.113.7\"}\n") << true
            << QStringLiteral("203.0.113.7");
        QTest::newRow("as long as allowed")
            << json("{'IsTor':true,'IP':'203.0.113.7'}").leftJustified(IPCheck::sizeLimitBytes)
            << true << QStringLiteral("203.0.113.7");
    }
    void readsTheServicesAnswer()
    {
        QFETCH(QByteArray, body);
        QFETCH(bool, isTor);
        QFETCH(QString, ip);
        const auto check = IPCheck::fromJson(body);
        QVERIFY(check);
        QCOMPARE(*check, (IPCheck{isTor, ip}));
    }

    void refusesEverythingElse_data()
    {
        QTest::addColumn<QByteArray>("body");
        const auto row = [](const char *name, const char *body) {
            QTest::newRow(name) << json(body);
        };
        row("empty", "");
        row("not JSON", "<html>503</html>");
        row("wrong case", "{'isTor':true,'IP':'203.0.113.7'}");
        row("wrong case of IP", "{'IsTor':true,'ip':'203.0.113.7'}");
        row("no IP", "{'IsTor':true}");
        row("no IsTor", "{'IP':'203.0.113.7'}");
        row("text for a truth value", "{'IsTor':'true','IP':'203.0.113.7'}");
        row("number for a truth value", "{'IsTor':1,'IP':'203.0.113.7'}");
        row("null for a truth value", "{'IsTor':null,'IP':'203.0.113.7'}");
        row("number for an address", "{'IsTor':true,'IP':203}");
        row("null for an address", "{'IsTor':true,'IP':null}");
        row("an address that is none", "{'IsTor':true,'IP':'<img src=x>'}");
        row("an empty address", "{'IsTor':true,'IP':''}");
        row("an address with something after it", "{'IsTor':true,'IP':'fe80::1%<b>eth0</b>'}");
        row("an address with a NUL in it", "{'IsTor':true,'IP':'203.0\\u0000113.7'}");
        QTest::newRow("an address that is too long")
            << json(("{'IsTor':true,'IP':'" + QByteArray(46, '0') + "'}").constData());
        row("an array", "[{'IsTor':true,'IP':'203.0.113.7'}]");
        row("half", "{'IsTor':true,'IP':'203.0");
        row("two objects", "{'IsTor':true,'IP':'203.0.113.7'}{}");
        QTest::newRow("too long")
            << json("{'IsTor':true,'IP':'203.0.113.7'}").leftJustified(IPCheck::sizeLimitBytes + 1);
        QTest::newRow("deeply nested") << QByteArray(30000, '[') + QByteArray(30000, ']');
    }
    void refusesEverythingElse()
    {
        QFETCH(QByteArray, body);
        const auto check = IPCheck::fromJson(body);
        QVERIFY(!check);
        QCOMPARE(check.error().kind, ProbeError::Kind::badResponse);
        QVERIFY(check.error().reachedNetwork);
        QVERIFY(!check.error().description().isEmpty());
    }

    void saysWhatIsWrongWithTheAnswer_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("start");
        QTest::newRow("too long") << QByteArray(IPCheck::sizeLimitBytes + 1, ' ')
                                  << QStringLiteral("The answer is too long.");
        QTest::newRow("not JSON") << QByteArray("<html>503</html>")
                                  << QStringLiteral("The answer is no JSON object: ");
        QTest::newRow("another object")
            << QByteArray("{}") << QStringLiteral("The answer has no \"IsTor\" and \"IP\".");
        QTest::newRow("no address") << json("{'IsTor':true,'IP':'x'}")
                                    << QStringLiteral("The answer's \"IP\" is no address.");
    }
    void saysWhatIsWrongWithTheAnswer()
    {
        QFETCH(QByteArray, body);
        QFETCH(QString, start);
        const auto check = IPCheck::fromJson(body);
        QVERIFY(!check);
        QVERIFY2(check.error().detail.startsWith(start), qPrintable(check.error().detail));
    }

    void randomBytesAreNoAnswer()
    {
        QRandomGenerator random(7);
        for (int round = 0; round < 2000; ++round) {
            QByteArray bytes(random.bounded(200), Qt::Uninitialized);
            for (char &byte : bytes)
                byte = static_cast<char>(random.bounded(256));
            QVERIFY(!IPCheck::fromJson(bytes));
        }
    }
};

VELDMARK_BARE_TEST(IPCheckTest)
#include "IPCheckTest.moc"
