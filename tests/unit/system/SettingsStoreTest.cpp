#include "system/SettingsStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace veldmark;

namespace {

const QString key = QStringLiteral("aKey");
const QString strict = QStringLiteral("strictMode");

// A home of its own. Permissions mean nothing to root, so a test run by root gives up its rights
// until the end of the test.
class Home {
public:
    Home() : profile(PlatformProfile::linux(Places::below(m_folder.path())))
    {
        if (::geteuid() == 0) {
            if (::chown(qPrintable(m_folder.path()), 65534, 65534) != 0 || ::seteuid(65534) != 0)
                qFatal("cannot give up root");
            m_wasRoot = true;
        }
    }
    ~Home()
    {
        if (m_wasRoot && ::seteuid(0) != 0)
            qFatal("cannot become root again");
    }

    QString path() const { return profile.settingsFile; }
    QString folder() const { return QFileInfo(path()).path(); }
    QString broken() const { return path() + QStringLiteral(".broken"); }

    void write(const QByteArray &content) const
    {
        QDir().mkpath(folder());
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write");
    }
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }
    QByteArray content() const { return read(path()); }
    QStringList files() const { return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot); }
    int mode(const QString &at) const
    {
        struct stat info {};
        return ::stat(qPrintable(at), &info) == 0 ? static_cast<int>(info.st_mode & 07777) : -1;
    }

private:
    QTemporaryDir m_folder;
    bool m_wasRoot = false;

public:
    const PlatformProfile profile;
};

// While it lives, this process can write no file beyond so many bytes, as on a full disk.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_limit);
        rlimit none = m_limit;
        none.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &none);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_limit{};
    void (*m_handler)(int) = nullptr;
};

} // namespace

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
        QCOMPARE(home.files(), QStringList(QStringLiteral("veldmark.conf"))); // nothing left over
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
        row("bridge", "obfs4 192.0.2.1:443 0123456789ABCDEF0123456789ABCDEF01234567 cert=a+b/c= iat-mode=0");
    }
    void anyTextSurvivesARoundTrip()
    {
        QFETCH(QString, text);
        const QString other = QStringLiteral("other");
        const QStringList one = {text}, two = {text, QStringLiteral("x")}, three = {text, text, text};
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

    void aValueOfTheWrongTypeIsTheDefaultAndStays()
    {
        Home home;
        home.write("[General]\nstrictMode=banana\naKey=a, b\nlist=@Variant(\\0\\0\\0\\x2\\0\\0\\0\\x5)\n");
        SettingsStore store(home.profile);
        store.registerDefaults({{strict, true}, {key, QStringLiteral("one")}});
        QCOMPARE(store.boolean(strict), true);
        QCOMPARE(store.string(key), QStringLiteral("one"));
        QCOMPARE(store.stringList(QStringLiteral("list")), QStringList());
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
        home.write("[%General]\nx=1\n\n[General]\nfuture=@Invalid()\nlater=\"a, b\"\n\n[New]\ndeep\\er=2\n");
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

    void aBrokenFileIsKeptAndTheDefaultsHold_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("garbage") << QByteArray("\x80\x81\xfe\xff garbage\n\x01\x02");
        QTest::newRow("nuls") << QByteArray(512, '\0');
        QTest::newRow("cut short") << QByteArray("[General]\nstrictMode=true\naKe");
        QTest::newRow("open quote") << QByteArray("[General]\naKey=\"x\nstrictMode=true\n");
    }
    void aBrokenFileIsKeptAndTheDefaultsHold()
    {
        QFETCH(QByteArray, content);
        Home home;
        home.write(content);
        SettingsStore store(home.profile);
        QCOMPARE(store.boolean(strict), false);
        QCOMPARE(store.problem().value(), QStringLiteral("The settings file couldn't be read. It was kept as %1, and a new one is used.").arg(home.broken()));
        QVERIFY(!store.problem()); // once
        QCOMPARE(Home::read(home.broken()), content);
        store.setBoolean(strict, true);
        QCOMPARE(home.content(), QByteArray("[General]\nstrictMode=true\n"));
        QCOMPARE(Home::read(home.broken()), content);
        QVERIFY(!store.problem());
    }

    void aSecondBrokenFileGetsAnotherName()
    {
        Home home;
        home.write("one");
        SettingsStore(home.profile).setBoolean(strict, true);
        home.write("two");
        SettingsStore store(home.profile);
        QVERIFY(store.problem()->contains(home.broken() + QStringLiteral("-1")));
        QCOMPARE(Home::read(home.broken()), QByteArray("one"));
        QCOMPARE(Home::read(home.broken() + QStringLiteral("-1")), QByteArray("two"));
    }

    void anEmptyFileIsFine()
    {
        Home home;
        home.write("");
        SettingsStore store(home.profile);
        QVERIFY(!store.problem());
        QVERIFY(!QFile::exists(home.broken()));
    }

    void whatCannotBeReadIsPutAside_data()
    {
        QTest::addColumn<QString>("what");
        for (const char *what : {"no permission", "directory", "fifo", "too large"})
            QTest::newRow(what) << QString::fromUtf8(what);
    }
    void whatCannotBeReadIsPutAside()
    {
        QFETCH(QString, what);
        Home home;
        home.write("[General]\nstrictMode=true\n");
        if (what == QLatin1String("no permission")) {
            QCOMPARE(::chmod(qPrintable(home.path()), 0), 0);
        } else if (what == QLatin1String("too large")) {
            QVERIFY(QFile::resize(home.path(), 8'000'000));
        } else {
            QVERIFY(QFile::remove(home.path()));
            if (what == QLatin1String("directory"))
                QVERIFY(QDir().mkpath(home.path() + QStringLiteral("/inside")));
            else
                QCOMPARE(::mkfifo(qPrintable(home.path()), 0600), 0);
        }
        SettingsStore store(home.profile);
        QVERIFY(store.problem());
        QVERIFY(QFileInfo::exists(home.broken()));
        QVERIFY(!QFileInfo::exists(home.path()));
        store.setString(key, QStringLiteral("new"));
        QCOMPARE(SettingsStore(home.profile).string(key), QStringLiteral("new"));
    }

    void aBrokenFileThatCannotBeMovedIsNeverWritten()
    {
        Home home;
        home.write("garbage");
        QCOMPARE(::chmod(qPrintable(home.folder()), 0500), 0);
        {
            SettingsStore store(home.profile);
            QVERIFY(store.problem());
            store.setBoolean(strict, true);
            QCOMPARE(store.boolean(strict), true); // in memory
            QVERIFY(!store.problem()); // said already
            QCOMPARE(::chmod(qPrintable(home.folder()), 0700), 0);
            store.setString(key, QStringLiteral("x"));
        }
        QCOMPARE(home.content(), QByteArray("garbage"));
        QCOMPARE(home.files(), QStringList(QStringLiteral("veldmark.conf")));
    }

    void aFolderThatCannotBeEnteredIsLeftAlone()
    {
        Home home;
        home.write("[General]\nstrictMode=true\n");
        QCOMPARE(::chmod(qPrintable(home.folder()), 0), 0);
        SettingsStore store(home.profile);
        QVERIFY(store.problem());
        store.setBoolean(strict, false);
        QCOMPARE(::chmod(qPrintable(home.folder()), 0700), 0);
        QCOMPARE(home.content(), QByteArray("[General]\nstrictMode=true\n"));
    }

    void aReadOnlyHomeIsReportedOnceAndTriedAgain()
    {
        Home home;
        const QString root = home.profile.places.root;
        QCOMPARE(::chmod(qPrintable(root), 0500), 0);
        SettingsStore store(home.profile);
        QVERIFY(!store.problem()); // nothing was lost yet
        store.setBoolean(strict, true);
        QCOMPARE(store.problem().value(), QStringLiteral("The settings couldn't be saved. Changes to them may last only until you quit."));
        store.setString(key, QStringLiteral("x"));
        QVERIFY(!store.problem());
        QCOMPARE(store.boolean(strict), true);
        QCOMPARE(::chmod(qPrintable(root), 0700), 0);
        store.setString(QStringLiteral("third"), QStringLiteral("y"));
        QCOMPARE(home.content(), QByteArray("[General]\naKey=x\nstrictMode=true\nthird=y\n"));
        QVERIFY(!store.problem());
    }

    void aFullDiskLeavesTheOldFile_data()
    {
        QTest::addColumn<int>("bytes");
        QTest::newRow("no room for a copy") << 4;
        QTest::newRow("no room for the change") << 30;
    }
    void aFullDiskLeavesTheOldFile()
    {
        QFETCH(int, bytes);
        const QString after(100, u'x');
        Home home;
        SettingsStore store(home.profile);
        store.setString(key, QStringLiteral("before"));
        const QByteArray before = home.content();
        QVERIFY(before.size() <= 30);
        {
            const FullDisk full(static_cast<rlim_t>(bytes));
            store.setString(key, after);
        }
        QVERIFY(store.problem());
        QCOMPARE(home.content(), before);
        QCOMPARE(home.files(), QStringList(QStringLiteral("veldmark.conf")));
        QCOMPARE(store.string(key), after);
        store.setBoolean(strict, true);
        QCOMPARE(home.content(), "[General]\naKey=" + after.toUtf8() + "\nstrictMode=true\n");
    }

    void aFileItsOwnerMadeReadOnlyIsLeftAlone()
    {
        Home home;
        home.write("[General]\nstrictMode=true\n");
        QCOMPARE(::chmod(qPrintable(home.path()), 0400), 0);
        SettingsStore store(home.profile);
        store.setBoolean(strict, false);
        QVERIFY(store.problem());
        QCOMPARE(home.content(), QByteArray("[General]\nstrictMode=true\n"));
    }

    void aFileDamagedWhileItRunsIsKeptAndRewrittenWhole()
    {
        Home home;
        SettingsStore store(home.profile);
        store.setString(key, QStringLiteral("x"));
        home.write("garbage");
        store.setBoolean(strict, true);
        QVERIFY(store.problem());
        QCOMPARE(Home::read(home.broken()), QByteArray("garbage"));
        QCOMPARE(home.content(), QByteArray("[General]\naKey=x\nstrictMode=true\n"));
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
        QVERIFY(QFile::exists(home.profile.places.root + QStringLiteral("/veldmark/veldmark.conf")));
    }
};

QTEST_GUILESS_MAIN(SettingsStoreTest)
#include "SettingsStoreTest.moc"
