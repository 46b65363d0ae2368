#include "app/LoginItem.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace veldmark;

class LoginItemTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isSetAndTakenAway()
    {
        QTemporaryDir folder;
        const PlatformProfile profile = PlatformProfile::linux(Places::below(folder.path()));
        const LoginItem item(profile);
        QVERIFY(!item.isSet());
        QVERIFY(item.set(false)); // nothing to take away
        QVERIFY(item.set(true));
        QVERIFY(item.isSet());
        QFile file(profile.autostartFile);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains("--hidden\n"));
        QVERIFY(item.set(true));
        QVERIFY(item.set(false));
        QVERIFY(!item.isSet());
    }

    void quotesTheProgramsPath_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("exec");
        QTest::newRow("plain") << QStringLiteral("/usr/bin/veldmark") << QStringLiteral("Exec=\"/usr/bin/veldmark\" --hidden");
        QTest::newRow("blank") << QStringLiteral("/a b/veldmark") << QStringLiteral("Exec=\"/a b/veldmark\" --hidden");
        QTest::newRow("per cent") << QStringLiteral("/50%/v") << QStringLiteral("Exec=\"/50%%/v\" --hidden");
        QTest::newRow("dollar and quote") << QStringLiteral("/$a\"b/v")
                                          << QStringLiteral("Exec=\"/\\\\$a\\\\\"b/v\" --hidden");
        QTest::newRow("backslash") << QStringLiteral("/a\\b") << QStringLiteral("Exec=\"/a\\\\\\\\b\" --hidden");
    }
    void quotesTheProgramsPath()
    {
        QFETCH(QString, path);
        QFETCH(QString, exec);
        const QStringList lines = LoginItem::entry(path).split(u'\n');
        QVERIFY2(lines.contains(exec), qPrintable(LoginItem::entry(path)));
    }

    void saysWhyItCannotBeWritten()
    {
        QTemporaryDir folder;
        PlatformProfile profile = PlatformProfile::linux(Places::below(folder.path()));
        QFile inTheWay(folder.filePath(QStringLiteral("file")));
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        profile.autostartFile = folder.filePath(QStringLiteral("file/autostart/veldmark.desktop"));
        const auto done = LoginItem(profile).set(true);
        QVERIFY(!done);
        QVERIFY(done.error().startsWith(QStringLiteral("Couldn't write ")));
        profile.autostartFile.clear();
        QVERIFY(!LoginItem(profile).set(true));
    }
};

VELDMARK_WINDOWED_TEST(LoginItemTest)
#include "LoginItemTest.moc"
