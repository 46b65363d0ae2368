#include "platform/InstalledApplications.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {

// outlives every search: the desktop's folders are read from the environment once
QTemporaryDir *folder = nullptr;

QString write(const QString &name, const QByteArray &content)
{
    const QString path = folder->filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(name));
    return path;
}

QByteArray entry(const QByteArray &name, const QByteArray &more = {})
{
    return "[Desktop Entry]\nType=Application\nName=" + name + "\nExec=/bin/true\n" + more;
}

} // namespace

class InstalledApplicationsTest : public QObject {
    Q_OBJECT
public:
    static void initMain()
    {
        folder = new QTemporaryDir;
        qputenv("XDG_DATA_HOME", QFile::encodeName(folder->filePath(u"home"_s)));
        qputenv("XDG_DATA_DIRS",
                QFile::encodeName(folder->filePath(u"local"_s)) + ':'
                    + QFile::encodeName(folder->filePath(u"system"_s)));
        qputenv("XDG_CURRENT_DESKTOP", "Sample");
        qputenv("LANGUAGE", "de");
        write(u"system/applications/zebra.desktop"_s, entry("zebra"));
        write(u"system/applications/alpha.desktop"_s,
              entry("Calculator", "Name[de]=Alpha\nIcon=calc\n"));
        write(u"system/applications/sub/Beta.desktop"_s,
              entry("beta", "Icon=/opt/beta.png\nTerminal=true\n"));
        write(u"system/applications/shadowed.desktop"_s, entry("The system's"));
        write(u"local/applications/shadowed.desktop"_s, entry("The administrator's"));
        write(u"home/applications/shadowed.desktop"_s, entry("The user's"));
        write(u"system/applications/taken-away.desktop"_s, entry("Taken away"));
        write(u"home/applications/taken-away.desktop"_s, entry("Taken away", "Hidden=true\n"));
        write(u"system/applications/invisible.desktop"_s, entry("Invisible", "NoDisplay=true\n"));
        write(u"system/applications/elsewhere.desktop"_s,
              entry("Elsewhere", "OnlyShowIn=Other;\n"));
        write(u"system/applications/here.desktop"_s, entry("Here", "OnlyShowIn=Other;Sample;\n"));
        write(u"system/applications/not-here.desktop"_s, entry("Not here", "NotShowIn=Sample;\n"));
        write(u"system/applications/gone.desktop"_s, entry("Gone", "TryExec=/nowhere/program\n"));
        write(u"system/applications/no-program.desktop"_s,
              "[Desktop Entry]\nType=Application\nName=No program\nExec=/nowhere/program\n");
        write(u"system/applications/link.desktop"_s,
              "[Desktop Entry]\nType=Link\nName=Link\nURL=https://example.org\n");
        write(u"system/applications/broken.desktop"_s, "\xff\xfe[Desktop");
        write(u"system/applications/notes.txt"_s, entry("No entry"));
        // Out of the menu, so that the list stays short.
        write(u"home/applications/player_play.desktop"_s, entry("Player", "NoDisplay=true\n"));
        write(u"home/applications/hostile.desktop"_s,
              entry("a\\n\\nb\x1b[2J\u202ec" + QByteArray(70, 'x'), "NoDisplay=true\n"));
        write(u"home/applications/nameless.desktop"_s, entry("\u202e\u2066", "NoDisplay=true\n"));
    }

private Q_SLOTS:
    void listsWhatAMenuWouldShowSortedByName()
    {
        QStringList names;
        QStringList paths;
        for (const InstalledApplication &application : installedApplications()) {
            names << application.name;
            paths << QDir(folder->path()).relativeFilePath(application.path);
        }
        QCOMPARE(names,
                 QStringList({u"Alpha"_s, u"beta"_s, u"Here"_s, u"The user's"_s, u"zebra"_s}));
        QCOMPARE(paths,
                 QStringList({u"system/applications/alpha.desktop"_s,
                              u"system/applications/sub/Beta.desktop"_s,
                              u"system/applications/here.desktop"_s,
                              u"home/applications/shadowed.desktop"_s,
                              u"system/applications/zebra.desktop"_s}));
    }

    void knowsTheirIcons()
    {
        const auto applications = installedApplications();
        QVERIFY(applications.size() == 5);
        QCOMPARE(applications[0].icon, u"calc"_s);
        QCOMPARE(applications[1].icon, u"/opt/beta.png"_s);
        QCOMPARE(applications[2].icon, QString());
    }

    void findsTheApplicationOfAnIdentity()
    {
        const InstalledApplication found = applicationOfIdentity(u"alpha"_s);
        QCOMPARE(found.name, u"Alpha"_s);
        QCOMPARE(found.icon, u"calc"_s);
        QCOMPARE(found.path, folder->filePath(u"system/applications/alpha.desktop"_s));
        QCOMPARE(applicationOfIdentity(u"shadowed"_s).name, u"The user's"_s);
        QCOMPARE(applicationOfIdentity(u"invisible"_s).name, u"Invisible"_s); // it runs
                                                                              // nevertheless
        QCOMPARE(applicationOfIdentity(u"sub-Beta"_s).name, u"beta"_s);
        QCOMPARE(applicationOfIdentity(u"snap.player.play"_s).name, u"Player"_s);
    }

    void whatHasNoEntryIsShownByItsId_data()
    {
        QTest::addColumn<QString>("id");
        for (const char *id : {"",
                               "unknown",
                               "taken-away",
                               "broken",
                               "as:alpha",
                               "session-2",
                               "user@",
                               ".",
                               "..",
                               "../applications/alpha",
                               "/alpha",
                               "alpha\\x2edesktop",
                               "alpha\n",
                               "a b",
                               "-alpha",
                               "snap.",
                               "snap..",
                               "snap.player",
                               "snap.player.play.more",
                               "\xd7\x90"})
            QTest::newRow(id) << QString::fromUtf8(id);
        QTest::newRow("long") << QString(100'000, u'a');
    }
    void whatHasNoEntryIsShownByItsId()
    {
        QFETCH(QString, id);
        const InstalledApplication found = applicationOfIdentity(id);
        QCOMPARE(found.name, id);
        QVERIFY(found.path.isEmpty() && found.icon.isEmpty());
    }

    // A user's entry may have any name; a terminal and a window show it.
    void aNameIsOneShortLine()
    {
        QCOMPARE(applicationOfIdentity(u"hostile"_s).name, u"a b[2Jc"_s + QString(53, u'x'));
        QCOMPARE(applicationOfIdentity(u"nameless"_s).name, u"nameless"_s);
    }

    static void cleanupTestCase() { delete folder; }
};

VELDMARK_TEST(InstalledApplicationsTest)
#include "InstalledApplicationsTest.moc"
