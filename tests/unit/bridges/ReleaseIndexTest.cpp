#include "bridges/ReleaseIndex.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace veldmark;

namespace {
const QString key = QStringLiteral("EF6E286DDA85EA2A4BA7DE684E2C6E8793298290");
} // namespace

class ReleaseIndexTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readsTheVersion_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("version");
        const auto indexOf = [](const char *version) {
            return QByteArray("{\"downloads\": {}, \"version\": \"") + version + "\"}";
        };
        QTest::newRow("release") << indexOf("14.0.4") << "14.0.4";
        QTest::newRow("alpha") << indexOf("14.0a1") << "14.0a1";
        QTest::newRow("one number") << indexOf("15") << "15";
        QTest::newRow("a blank") << indexOf("14.0 beta") << "";
        QTest::newRow("a path") << indexOf("../14.0") << "";
        QTest::newRow("a folder") << indexOf("14.0/x") << "";
        QTest::newRow("a line break behind") << indexOf("14.0\\n") << "";
        QTest::newRow("capitals") << indexOf("14.0A1") << "";
        QTest::newRow("foreign digits") << indexOf("\u0661\u0664.\u0660") << "";
        QTest::newRow("two points") << indexOf("14..0") << "";
        QTest::newRow("a point behind") << indexOf("14.") << "";
        QTest::newRow("empty") << indexOf("") << "";
        QTest::newRow("without end") << indexOf(QByteArray(5000, '1').constData()) << "";
        QTest::newRow("a number") << QByteArray("{\"version\": 14}") << "";
        QTest::newRow("no member") << QByteArray("{}") << "";
        QTest::newRow("a list") << QByteArray("[\"14.0\"]") << "";
        const QByteArray longest = "1." + QByteArray(38, '2');
        QTest::newRow("longest") << indexOf(longest.constData()) << QString::fromLatin1(longest);
        QTest::newRow("too long") << indexOf((longest + '2').constData()) << "";
        QTest::newRow("cut short") << QByteArray("{\"version\": \"14.0\"") << "";
        QTest::newRow("a page") << QByteArray("<html>14.0</html>") << "";
        QTest::newRow("nothing") << QByteArray() << "";
    }

    void readsTheVersion()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, version);
        QCOMPARE(latestVersion(json).value_or(QString()), version);
    }

    void knowsAValidSignature_data()
    {
        QTest::addColumn<QString>("status");
        QTest::addColumn<bool>("isValid");
        const QString valid = QStringLiteral("[GNUPG:] VALIDSIG ");
        const QString bySubkey = valid + QStringLiteral("6131 2024-01-01 1704067200 0 4 0 1 10 00 ")
            + key;
        QTest::newRow("by the key") << valid + key + QStringLiteral(" 2024-01-01 0") << true;
        QTest::newRow("by a subkey")
            << QStringLiteral("[GNUPG:] NEWSIG\n") + bySubkey + u'\n' << true;
        QTest::newRow("a carriage return") << bySubkey + QStringLiteral("\r\n") << true;
        QTest::newRow("the second of two")
            << valid + QStringLiteral("0123\n[GNUPG:] NEWSIG\n") + bySubkey << true;
        QTest::newRow("another key") << valid + QStringLiteral("0123456789") << false;
        QTest::newRow("only a part of a field") << valid + key + QStringLiteral("00") << false;
        QTest::newRow("good but not valid") << QStringLiteral("[GNUPG:] GOODSIG ") + key << false;
        QTest::newRow("no status line") << QStringLiteral("VALIDSIG ") + key << false;
        QTest::newRow("within a line") << QStringLiteral("gpg: ") + bySubkey << false;
        QTest::newRow("longer keyword") << QStringLiteral("[GNUPG:] VALIDSIGX ") + key << false;
        QTest::newRow("a revoked key")
            << QStringLiteral("[GNUPG:] NEWSIG\n[GNUPG:] REVKEYSIG 00 x\n") + bySubkey << false;
        QTest::newRow("after a revoked one")
            << QStringLiteral("[GNUPG:] REVKEYSIG 00 x\n[GNUPG:] NEWSIG\n[GNUPG:] GOODSIG 00 x\n")
                + bySubkey
            << true;
        QTest::newRow("nothing") << QString() << false;
    }

    void knowsAValidSignature()
    {
        QFETCH(QString, status);
        QFETCH(bool, isValid);
        QCOMPARE(signatureTime(status, key).has_value(), isValid);
    }

    void tellsWhenItWasSigned()
    {
        const QString bySubkey
            = QStringLiteral("[GNUPG:] VALIDSIG 6131 2024-01-01 1704067200 0 4 0 1 10 00 ") + key;
        QCOMPARE(signatureTime(bySubkey, key), std::optional<qint64>(1704067200));
        QCOMPARE(signatureTime(QStringLiteral("[GNUPG:] VALIDSIG ") + key, key),
                 std::optional<qint64>(0));
    }

    void comparesVersions_data()
    {
        QTest::addColumn<QString>("older");
        QTest::addColumn<QString>("newer");
        QTest::newRow("last group") << "14.0.4"
                                    << "14.0.5";
        QTest::newRow("numbers, not letters") << "14.0.9"
                                              << "14.0.10";
        QTest::newRow("first group") << "9.5.9"
                                     << "14.0";
        QTest::newRow("one group more") << "14.0"
                                        << "14.0.1";
        QTest::newRow("alpha and release") << "14.0a9"
                                           << "14.0";
        QTest::newRow("two alphas") << "14.0a9"
                                    << "14.0a10";
        QTest::newRow("alpha and beta") << "14.0a1"
                                        << "14.0b1";
        QTest::newRow("release and the next alpha") << "14.0.4"
                                                    << "14.5a1";
    }

    void comparesVersions()
    {
        QFETCH(QString, older);
        QFETCH(QString, newer);
        QVERIFY(isOlderVersion(older, newer));
        QVERIFY(!isOlderVersion(newer, older));
        QVERIFY(!isOlderVersion(older, older) && !isOlderVersion(newer, newer));
    }

    void equalOrStrangeVersionsAreNotOlder()
    {
        QVERIFY(!isOlderVersion(QStringLiteral("14.0"), QStringLiteral("14.0.0")));
        QVERIFY(!isOlderVersion(QStringLiteral("14.0.0"), QStringLiteral("14.0")));
        QVERIFY(!isOlderVersion(QStringLiteral("14.0"), QStringLiteral("garbage")));
        QVERIFY(!isOlderVersion(QStringLiteral("14.0"), QString()));
    }

    void tellsHowFarADownloadIs()
    {
        QCOMPARE(progressText(0, 30'100'000), QStringLiteral("0.0 of 30.1 MB (0%)"));
        QCOMPARE(progressText(12'340'000, 30'100'000), QStringLiteral("12.3 of 30.1 MB (40%)"));
        QCOMPARE(progressText(30'100'000, 30'100'000), QStringLiteral("30.1 of 30.1 MB (100%)"));
        QCOMPARE(progressText(1'234'567, -1), QStringLiteral("1.2 MB"));
        QCOMPARE(progressText(0, 0), QStringLiteral("0.0 MB"));
    }
};

VELDMARK_TEST(ReleaseIndexTest)
#include "ReleaseIndexTest.moc"
