#include "base/RootsOwn.h"

#include "support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace veldmark;

class RootsOwnTest : public QObject {
    Q_OBJECT

    static void setMode(const QString &path, mode_t mode)
    {
        QCOMPARE(::chmod(QFile::encodeName(path).constData(), mode), 0);
    }

private Q_SLOTS:
    void theSystemsProgramsAreRootsOwn()
    {
        QVERIFY(isRootsOwn(u"/bin/sh"_s));
        QVERIFY(isRootsOwn(u"/"_s));
        QVERIFY(!isRootsOwn(u"/bin/no such program"_s));
        QVERIFY(!isRootsOwn(QString()));
    }

    void aFileThatOthersCanWriteIsNot()
    {
        if (::geteuid() != 0)
            QSKIP("needs root's files");
        // Anybody can add a file to /tmp, but only the owner can replace one.
        const QTemporaryDir folder(u"/tmp/veldmark-XXXXXX"_s);
        const QString inner = folder.filePath(u"inner"_s);
        const QString path = inner + u"/file"_s;
        QVERIFY(QDir().mkpath(inner));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        setMode(inner, 0755);
        for (const mode_t mode : {0644, 0755, 0600}) {
            setMode(path, mode);
            QVERIFY(isRootsOwn(path));
        }
        for (const mode_t mode : {0664, 0646, 0666, 01646}) {
            setMode(path, mode);
            QVERIFY(!isRootsOwn(path));
        }
        setMode(path, 0644);
        for (const mode_t mode : {0775, 0757}) {
            setMode(inner, mode);
            QVERIFY(!isRootsOwn(path));
        }
        setMode(inner, 01777);
        QVERIFY(isRootsOwn(path));
        QVERIFY(!isRootsOwn(inner)); // itself, it is open
    }

    void aFileBelowAnotherUsersFolderIsNotRootsOwn()
    {
        if (::geteuid() != 0)
            QSKIP("needs root's files");
        const QTemporaryDir folder(u"/tmp/veldmark-XXXXXX"_s);
        const QString inner = folder.filePath(u"inner"_s);
        const QString path = inner + u"/file"_s;
        const QString link = folder.filePath(u"link"_s);
        QVERIFY(QDir().mkpath(inner) && QFile::link(path, link));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        setMode(inner, 0755);
        setMode(path, 0644);
        QVERIFY(isRootsOwn(link));
        QCOMPARE(::chown(QFile::encodeName(inner).constData(), 1, 0), 0);
        QVERIFY(!isRootsOwn(path));
        QVERIFY(!isRootsOwn(link));
        QCOMPARE(::chown(QFile::encodeName(inner).constData(), 0, 0), 0);
        QCOMPARE(::chown(QFile::encodeName(path).constData(), 1, 0), 0);
        QVERIFY(!isRootsOwn(path));
    }
};

VELDMARK_TEST(RootsOwnTest)
#include "RootsOwnTest.moc"
