#include "support/TestProgram.h"
#include "unit/system/TemporaryHome.h"

#include <QTest>

using namespace veldmark;
using Home = TemporaryHome;

class SettingsStoreTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void startsWithTheDefaultsAndWritesNothing()
    {
        Home home;
        SettingsStore store(home.profile);
        QCOMPARE(store.boolean(key), false);
        QCOMPARE(store.string(key), QString());
        QCOMPARE(store.stringList(key), QStringList());
        store.registerDefaults({{strict, true}, {key, QStringLiteral("x")}});
        QCOMPARE(store.boolean(strict), true);
        QCOMPARE(store.string(key), QStringLiteral("x"));
        QVERIFY(!store.problem());
        QVERIFY(!QFile::exists(home.folder()));
    }

    void aSetValueIsOnDiskAtOnceAndPrivate()
    {
        Home home;
        SettingsStore store(home.profile);
        store.registerDefaults({{key, QStringLiteral("unwritten")}});
        store.setBoolean(strict, true);
        QCOMPARE(home.content(), QByteArray("[General]\nstrictMode=true\n"));
        QCOMPARE(home.mode(home.path()), 0600);
        QCOMPARE(home.mode(home.folder()), 0700);
        QCOMPARE(home.files(), QStringList(QStringLiteral("veldmark.conf"))); // no leftovers
        QVERIFY(!store.problem());
        QCOMPARE(SettingsStore(home.profile).boolean(strict), true);
    }

    void anExistingFileKeepsItsMode()
    {
        Home home;
        home.write("");
        QCOMPARE(::chmod(qPrintable(home.path()), 0640), 0);
        SettingsStore(home.profile).setBoolean(strict, true);
        QCOMPARE(home.mode(home.path()), 0640);
    }

    void anyTextSurvivesARoundTrip_data()
    {
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const char *text) {
            QTest::newRow(name) << QString::fromUtf8(text);
        };
        row("empty", "");
        row("comma", "a, b,c");
        row("semicolon and equals", "a;b=c#d");
        row("quotes", "\"a\" 'b' \"");
        row("backslash", "C:\\x\\n\\");
        row("percent", "%General %2F");
        row("at sign", "@Invalid()");
        row("at signs", "@@x");
        row("line breaks", "a\r\nb\n");
        row("blanks around", "  a\t");
        row("section", "[General]");
        row("unicode", "Grüße 漢字 🧅");
        row("boolean text", "true");
        row("bridge",
            "obfs4 192.0.2.1:443 0123456789ABCDEF0123456789ABCDEF01234567 cert=a+b/c= iat-mode=0");
    }
    void anyTextSurvivesARoundTrip()
    {
        QFETCH(QString, text);
        const QString other = QStringLiteral("other");
        const QStringList one = {text}, two = {text, QStringLiteral("x")},
                          three = {text, text, text};
        for (const QStringList &list : {one, two, three}) {
            Home home;
            {
                SettingsStore store(home.profile);
                store.setString(key, text);
                store.setStringList(other, list);
                QCOMPARE(store.string(key), text);
                QCOMPARE(store.stringList(other), list);
            }
            SettingsStore again(home.profile);
            QCOMPARE(again.string(key), text);
            QCOMPARE(again.stringList(other), list);
            again.setBoolean(strict, true); // a rewrite by another process changes nothing
            SettingsStore third(home.profile);
            QCOMPARE(third.string(key), text);
            QCOMPARE(third.stringList(other), list);
            QVERIFY(!third.problem());
        }
    }

    void anEmptyListIsNotAnUnsetOne()
    {
        Home home;
        const QVariantMap defaults = {{key, QStringList(QStringLiteral("default"))}};
        {
            SettingsStore store(home.profile);
            store.setStringList(key, {});
        }
        SettingsStore store(home.profile);
        store.registerDefaults(defaults);
        QCOMPARE(store.stringList(key), QStringList());
        store.remove(key);
        QCOMPARE(store.stringList(key), QStringList(QStringLiteral("default")));
        SettingsStore again(home.profile);
        again.registerDefaults(defaults);
        QCOMPARE(again.stringList(key), QStringList(QStringLiteral("default")));
    }

    // QSettings reads a list with such a word as values of any type.
    void aListWithAWordThatBeginsLikeATypeIsReadWhole()
    {
        Home home;
        home.write("[General]\naKey=one, @two\n");
        SettingsStore store(home.profile);
        store.registerDefaults({{key, QStringList(QStringLiteral("default"))}});
        QCOMPARE(store.stringList(key),
                 QStringList({QStringLiteral("one"), QStringLiteral("@two")}));
    }

    void aValueOfTheWrongTypeIsTheDefaultAndStays()
    {
        Home home;
        home.write(
            "[General]\nstrictMode=banana\naKey=a, b\nlist=@Variant(\\0\\0\\0\\x2\\0\\0\\0\\x5)\nmixed=one, @Size(1 2)\n");
        SettingsStore store(home.profile);
        store.registerDefaults({{strict, true}, {key, QStringLiteral("one")}});
        QCOMPARE(store.boolean(strict), true);
        QCOMPARE(store.string(key), QStringLiteral("one"));
        QCOMPARE(store.stringList(QStringLiteral("list")), QStringList());
        QCOMPARE(store.stringList(QStringLiteral("mixed")), QStringList()); // not all of it is text
        QCOMPARE(store.boolean(key), false);
        QVERIFY(!store.problem());
        store.setBoolean(QStringLiteral("other"), true);
        QVERIFY(home.content().contains("strictMode=banana\n"));
        QVERIFY(home.content().contains("aKey=a, b\n"));
    }

    void booleansAreUnderstoodAsPeopleWriteThem_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("value");
        for (const char *yes : {"true", "True", "1", "\"true\""})
            QTest::newRow(yes) << QByteArray(yes) << true;
        for (const char *no : {"false", "FALSE", "0"})
            QTest::newRow(no) << QByteArray(no) << false;
    }
    void booleansAreUnderstoodAsPeopleWriteThem()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, value);
        Home home;
        home.write("[General]\nstrictMode=" + text + "\n");
        SettingsStore store(home.profile);
        store.registerDefaults({{strict, !value}});
        QCOMPARE(store.boolean(strict), value);
    }

    void keysOfANewerVersionStay()
    {
        Home home;
        home.write(
            "[%General]\nx=1\n\n[General]\nfuture=@Invalid()\nlater=\"a, b\"\n\n[New]\ndeep\\er=2\n");
        {
            SettingsStore store(home.profile);
            store.setBoolean(strict, true);
            store.setString(key, QStringLiteral("v"));
            store.remove(key);
        }
        for (const char *line : {"[%General]\nx=1\n", "future=@Invalid()\n", "later=\"a, b\"\n",
                                 "[New]\ndeep\\er=2\n", "strictMode=true\n"})
            QVERIFY2(home.content().contains(line), home.content().constData());
        QVERIFY(!home.content().contains("aKey"));
    }

    void editsByHandWhileItRunsStay()
    {
        Home home;
        home.write("[General]\nhand=1\n");
        SettingsStore store(home.profile);
        home.write("[General]\nhand=2\n"); // of the same size
        store.setBoolean(strict, true);
        QVERIFY2(home.content().contains("hand=2\n"), home.content().constData());
        QCOMPARE(store.string(QStringLiteral("hand")), QStringLiteral("1"));
    }

    void quickChangesOfOneSizeAllArrive()
    {
        Home home;
        SettingsStore store(home.profile);
        const QString second = QStringLiteral("second");
        for (int i = 0; i < 40; ++i) {
            const QString value = QString::number(10 + i);
            store.setString(key, value);
            store.setString(second, value);
            SettingsStore reader(home.profile);
            QCOMPARE(reader.string(key), value);
            QCOMPARE(reader.string(second), value);
        }
    }

    void aLinkIsFollowed()
    {
        Home home;
        const QString real = home.profile.places.root + QStringLiteral("/dotfiles.conf");
        home.write("");
        QVERIFY(QFile::rename(home.path(), real));
        QVERIFY(QFile::link(real, home.path()));
        SettingsStore(home.profile).setBoolean(strict, true);
        QVERIFY(QFileInfo(home.path()).isSymLink());
        QCOMPARE(Home::read(real), QByteArray("[General]\nstrictMode=true\n"));
    }

    void withoutAFileTheSystemsStoreIsUsed()
    {
        Home home;
        const PlatformProfile mac = PlatformProfile::macos(home.profile.places);
        QVERIFY(mac.settingsFile.isEmpty());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home.profile.places.root);
        {
            SettingsStore store(mac);
            store.registerDefaults({{strict, true}});
            QCOMPARE(store.boolean(strict), true);
            store.setBoolean(strict, false);
            store.setStringList(key, {QStringLiteral("a, b")});
            SettingsStore again(mac);
            QCOMPARE(again.stringList(key), QStringList(QStringLiteral("a, b")));
            again.registerDefaults({{strict, true}});
            QCOMPARE(again.boolean(strict), false);
        }
        QVERIFY(
            QFile::exists(home.profile.places.root + QStringLiteral("/veldmark/veldmark.conf")));
    }
};

VELDMARK_TEST(SettingsStoreTest)
#include "SettingsStoreTest.moc"
