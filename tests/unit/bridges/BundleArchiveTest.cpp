#include "bridges/BundleArchive.h"

#include "ProgramTree.h"
#include "support/TestProgram.h"

#include <QProcess>

#include <sys/stat.h>
#include <unistd.h>

using namespace veldmark;

class BundleArchiveTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void judgesAListing_data()
    {
        QTest::addColumn<QByteArray>("names");
        QTest::addColumn<QByteArray>("details");
        QTest::addColumn<QString>("problem"); // its beginning
        const QByteArray file = "-rw-r--r-- 0/0 2 1970-01-01 00:00 ";
        const QByteArray link = "lrwxrwxrwx 0/0 0 1970-01-01 00:00 ";
        QTest::newRow("files and folders")
            << QByteArray("tor/\ntor/lyrebird\n")
            << QByteArray("drwxr-xr-x 0/0 0 1970-01-01 00:00 tor/\n") + file + "tor/lyrebird\n"
            << "";
        QTest::newRow("as a Mac lists them")
            << QByteArray("./tor/x y\n")
            << QByteArray("-rw-r--r--  0 0  0   12 Jan  1  1970 ./tor/x y\n") << "";
        QTest::newRow("a link to a neighbour")
            << QByteArray("lib.so\n") << link + "lib.so -> lib.so.1\n"
            << "";
        QTest::newRow("a link with an arrow in its name")
            << QByteArray("a -> b\n") << link + "a -> b -> ../x\n"
            << "The archive contains a link that leads elsewhere: a -> b";
        QTest::newRow("an absolute path")
            << QByteArray("/etc/x\n") << file + "/etc/x\n"
            << "The archive contains a path that leads elsewhere: /etc/x";
        QTest::newRow("a path upwards") << QByteArray("a/../../x\n") << file + "a/../../x\n"
                                        << "The archive contains a path that leads elsewhere";
        QTest::newRow("dots in a name") << QByteArray("a..b/..c\n") << file + "a..b/..c\n"
                                        << "";
        QTest::newRow("an absolute link") << QByteArray("a\n") << link + "a -> /etc\n"
                                          << "The archive contains a link that leads elsewhere";
        QTest::newRow("a link upwards") << QByteArray("a\n") << link + "a -> b/../..\n"
                                        << "The archive contains a link that leads elsewhere";
        QTest::newRow("a link to nothing") << QByteArray("a\n") << link + "a -> \n"
                                           << "The archive contains a link that leads elsewhere";
        QTest::newRow("a hard link")
            << QByteArray("a\n") << QByteArray("hrw-r--r-- 0/0 0 1970-01-01 00:00 a link to b\n")
            << "The archive contains a hard link";
        QTest::newRow("a Mac's hard link")
            << QByteArray("a\n") << QByteArray("-rw-r--r--  0 0  0  0 Jan  1  1970 a link to b\n")
            << "The archive contains a hard link";
        QTest::newRow("a device")
            << QByteArray("a\n") << QByteArray("crw-r--r-- 0/0 1,3 1970-01-01 00:00 a\n")
            << "The archive contains an entry that is neither a file nor a folder";
        QTest::newRow("a pipe")
            << QByteArray("a\n") << QByteArray("prw-r--r-- 0/0 0 1970-01-01 00:00 a\n")
            << "The archive contains an entry that is neither a file nor a folder";
        QTest::newRow("too large") << QByteArray("a\nb\n")
                                   << QByteArray("-rw-r--r-- 0/0 1999999999 1970-01-01 00:00 a\n"
                                                 "-rw-r--r-- 0/0 2 1970-01-01 00:00 b\n")
                                   << "The archive's content is too large.";
        QTest::newRow("no size") << QByteArray("a\n") << QByteArray("-rw-r--r-- a\n")
                                 << "The archive's content is too large.";
        QTest::newRow("lists that differ") << QByteArray("a\n") << file + "a\n" + file + "b\n"
                                           << "The archive's list of files is ambiguous.";
        QTest::newRow("too many") << QByteArray("a\n").repeated(20'001)
                                  << (file + "a\n").repeated(20'001)
                                  << "The archive contains too many files.";
        QTest::newRow("nothing") << QByteArray() << QByteArray()
                                 << "The file is empty or not an archive.";
    }

    void judgesAListing()
    {
        QFETCH(QByteArray, names);
        QFETCH(QByteArray, details);
        QFETCH(QString, problem);
        const QString found = listingProblem(names, details).value_or(Text()).english();
        if (problem.isEmpty())
            QCOMPARE(found, QString());
        else
            QVERIFY2(found.startsWith(problem), qPrintable(found));
    }

    // Its maker chooses the owner's name, and a name with blanks would move the size along the
    // line.
    void ownersOfAnArchiveHaveNoNames()
    {
        const ProgramTree tree;
        tree.file(QStringLiteral("in/tor/readme"), "text");
        const QString archive = tree.path(QStringLiteral("archive.tar.gz"));
        QProcess tar;
        tar.start(QStringLiteral("tar"),
                  {QStringLiteral("--owner=a b c d:7"), QStringLiteral("-C"),
                   tree.path(QStringLiteral("in")), QStringLiteral("-czf"), archive,
                   QStringLiteral("tor")});
        QVERIFY(tar.waitForFinished());
        QCOMPARE(tar.exitCode(), 0);
        tar.start(QStringLiteral("tar"), {QStringLiteral("-tvzf"), archive});
        QVERIFY(tar.waitForFinished());
        QVERIFY(tar.readAllStandardOutput().contains(" a b c d/")); // it is in there
        QCOMPARE(
            archiveProblem(QStringLiteral("/usr/bin/tar"), archive).value_or(QString()).english(),
            QString());
    }

    void givesWhatWasUnpackedPlainPermissions()
    {
        const ProgramTree tree;
        const QByteArray program = QFile::encodeName(tree.program(QStringLiteral("tor/lyrebird")));
        const QByteArray text = QFile::encodeName(tree.file(QStringLiteral("tor/readme"), "text"));
        QCOMPARE(::chmod(program.constData(), 06777), 0); // a setuid file would run as its owner
        QCOMPARE(::chmod(text.constData(), 0606), 0);
        QCOMPARE(::symlink("lyrebird",
                           QFile::encodeName(tree.path(QStringLiteral("tor/link"))).constData()),
                 0);
        QCOMPARE(settleUnpacked(tree.root()).value_or(QString()), QString());
        struct stat status { };
        ::stat(program.constData(), &status);
        QCOMPARE(status.st_mode & 07777U, 0755U);
        ::stat(text.constData(), &status);
        QCOMPARE(status.st_mode & 07777U, 0644U);
    }

    void findsWhatShouldNotHaveBeenUnpacked_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("absolute link") << 0;
        QTest::newRow("link upwards") << 1;
        QTest::newRow("hard link") << 2;
        QTest::newRow("pipe") << 3;
    }

    void findsWhatShouldNotHaveBeenUnpacked()
    {
        QFETCH(int, kind);
        const ProgramTree tree;
        const QByteArray other = QFile::encodeName(tree.file(QStringLiteral("other"), "x"));
        tree.file(QStringLiteral("bundle/tor/file"), "x");
        const QByteArray odd = QFile::encodeName(tree.path(QStringLiteral("bundle/tor/odd")));
        const QString bundle = tree.path(QStringLiteral("bundle"));
        QVERIFY(!settleUnpacked(bundle));
        const int made = kind == 0 ? ::symlink("/etc", odd.constData())
            : kind == 1            ? ::symlink("../../other", odd.constData())
            : kind == 2            ? ::link(other.constData(), odd.constData())
                                   : ::mkfifo(odd.constData(), 0600);
        QCOMPARE(made, 0);
        QVERIFY(settleUnpacked(bundle));
    }
};

VELDMARK_TEST(BundleArchiveTest)
#include "BundleArchiveTest.moc"
