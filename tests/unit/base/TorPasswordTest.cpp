#include "base/TorPassword.h"

#include "support/TestProgram.h"

#include <QFile>
#include <QProcess>
#include <QTest>

#include <set>

using namespace Qt::StringLiterals;
using namespace veldmark;

// The answers are those of Tor 0.4.9.11.
class TorPasswordTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void hashesAsTorDoes_data()
    {
        QTest::addColumn<QByteArray>("clear");
        QTest::addColumn<QByteArray>("salt");
        QTest::addColumn<QString>("hash");
        QTest::newRow("secret")
            << "secret"_ba
            << "0e9492687e0a5c45"_ba
            << u"16:0E9492687E0A5C45608684BD3E18F27E46246AB3A76B583FFDE1022BE0"_s;
        QTest::newRow("012345")
            << "0123456789abcdef0123456789abcdef0123456789abcdef0123456789abcdef"_ba
            << "546060e6a9caa55d"_ba
            << u"16:546060E6A9CAA55D60F929AD9FBFC87A536074926C3833503527BE3989"_s;
    }

    void hashesAsTorDoes()
    {
        QFETCH(QByteArray, clear);
        QFETCH(QByteArray, salt);
        QFETCH(QString, hash);
        QCOMPARE(TorPassword::hashOf(clear, QByteArray::fromHex(salt)), hash);
        QVERIFY(TorPassword::matches(clear, hash));
        QVERIFY(!TorPassword::matches(clear + 'x', hash));
    }

    // Passwords of any length, relative to the rounds of the count.
    void agreesWithTheProgram()
    {
        const QString tor = u"/usr/bin/tor"_s;
        if (!QFile::exists(tor))
            QSKIP("tor is not installed");
        for (const int length : {1, 7, 8, 55, 56, 57, 64, 120, 1000, 65'528, 65'529, 70'000}) {
            const QByteArray clear(length, 'v');
            QProcess hashing;
            hashing.start(tor, {u"--quiet"_s, u"--hash-password"_s, QString::fromLatin1(clear)});
            QVERIFY(hashing.waitForFinished());
            const QString hash = QString::fromLatin1(hashing.readAllStandardOutput()).trimmed();
            QVERIFY2(hash.size() == 61, qPrintable(hash));
            QVERIFY2(TorPassword::matches(clear, hash),
                     qPrintable(u"%1 bytes: %2"_s.arg(length).arg(hash)));
        }
    }

    void everyOneIsNew()
    {
        std::set<QString> seen;
        for (int round = 0; round < 100; ++round) {
            const TorPassword password = TorPassword::random();
            QCOMPARE(password.clear.size(), 64);
            QVERIFY(TorPassword::matches(password.clear.toLatin1(), password.hash));
            seen.insert(password.clear);
            seen.insert(password.hash);
        }
        QCOMPARE(seen.size(), std::size_t(200));
    }
};

VELDMARK_TEST(TorPasswordTest)
#include "TorPasswordTest.moc"
