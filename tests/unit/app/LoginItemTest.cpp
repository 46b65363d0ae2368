#include "app/LoginItem.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <unistd.h>

using namespace veldmark;

namespace {

// A language that puts every text in brackets.
class Brackets final : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return u'[' + QString::fromUtf8(source) + u']';
    }
};

} // namespace

class LoginItemTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isSetAndTakenAway()
    {
        QTemporaryDir folder;
        const PlatformProfile profile = PlatformProfile::linux(Places::below(folder.path()));
        const LoginItem item(profile);
        QVERIFY(!item.isSet());
        QVERIFY(item.set(false)); // nothing to remove
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
        QTest::newRow("plain") << QStringLiteral("/usr/bin/veldmark")
                               << QStringLiteral("Exec=\"/usr/bin/veldmark\" --hidden");
        QTest::newRow("blank") << QStringLiteral("/a b/veldmark")
                               << QStringLiteral("Exec=\"/a b/veldmark\" --hidden");
        QTest::newRow("per cent") << QStringLiteral("/50%/v")
                                  << QStringLiteral("Exec=\"/50%%/v\" --hidden");
        QTest::newRow("dollar and quote")
            << QStringLiteral("/$a\"b/v") << QStringLiteral("Exec=\"/\\\\$a\\\\\"b/v\" --hidden");
        QTest::newRow("backslash")
            << QStringLiteral("/a\\b") << QStringLiteral("Exec=\"/a\\\\\\\\b\" --hidden");
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
        QVERIFY(done.error().english().startsWith(QStringLiteral("Couldn't write ")));
        profile.autostartFile.clear();
        QVERIFY(!LoginItem(profile).set(true));
    }

    // English for the published state, the user's language for the window.
    void whatIsWrongIsKnownInBothLanguages()
    {
        QTemporaryDir folder;
        PlatformProfile profile = PlatformProfile::linux(Places::below(folder.path()));
        profile.autostartFile = folder.filePath(QStringLiteral("folder/in the way"));
        QVERIFY(QDir().mkpath(profile.autostartFile));
        Brackets language;
        QCoreApplication::installTranslator(&language);
        QCOMPARE(QCoreApplication::translate("LoginItem", "x"), QStringLiteral("[x]"));
        const auto done = LoginItem(profile).set(true);
        QVERIFY(!done);
        QVERIFY2(done.error().english().startsWith(QStringLiteral("Couldn't write ")),
                 qPrintable(done.error().english()));
        QVERIFY(done.error().translated().startsWith(QStringLiteral("[Couldn't write ")));
        profile.autostartFile.clear();
        const auto refused = LoginItem(profile).set(true);
        QCOMPARE(refused.error().english(), QStringLiteral("Login items can't be changed here."));
        QCOMPARE(refused.error().translated(),
                 QStringLiteral("[Login items can't be changed here.]"));
    }

    void anEntryThatIsSwitchedOffIsOff_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<bool>("set");
        const QByteArray head = "[Desktop Entry]\nType=Application\nExec=veldmark\n";
        QTest::newRow("plain") << head << true;
        QTest::newRow("enabled") << head + "X-GNOME-Autostart-enabled=true\nHidden=false\n" << true;
        QTest::newRow("hidden") << head + "Hidden=true\n" << false;
        QTest::newRow("hidden, with blanks") << head + "  Hidden = true \r\n" << false;
        QTest::newRow("not enabled") << head + "X-GNOME-Autostart-enabled=false\n" << false;
        QTest::newRow("both ways") << head + "Hidden=false\nX-GNOME-Autostart-enabled=false\n"
                                   << false;
        QTest::newRow("another group") << head + "[Desktop Action x]\nHidden=true\n" << true;
        QTest::newRow("a longer key") << head + "NotHidden=true\n" << true;
        QTest::newRow("a comment") << head + "#Hidden=true\n" << true;
    }

    void anEntryThatIsSwitchedOffIsOff()
    {
        QFETCH(QByteArray, lines);
        QFETCH(bool, set);
        QTemporaryDir folder;
        const PlatformProfile profile = PlatformProfile::linux(Places::below(folder.path()));
        QVERIFY(QDir().mkpath(QFileInfo(profile.autostartFile).path()));
        QFile file(profile.autostartFile);
        const auto content = [&file] {
            const bool opened = file.open(QIODevice::ReadOnly);
            const QByteArray text = file.readAll();
            file.close();
            return opened ? text : QByteArray("(none)");
        };
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(lines) == lines.size());
        file.close();
        const LoginItem item(profile);
        QCOMPARE(item.isSet(), set);
        QVERIFY(item.set(set)); // the present value
        QCOMPARE(content(), lines);
        QVERIFY(item.set(!set));
        QCOMPARE(item.isSet(), !set);
        QVERIFY(item.set(true));
        QVERIFY(item.isSet());
    }
};

VELDMARK_WINDOWED_TEST(LoginItemTest)
#include "LoginItemTest.moc"
