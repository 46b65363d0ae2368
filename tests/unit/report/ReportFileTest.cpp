#include "report/ReportFile.h"

#include "support/TestProgram.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace veldmark;

class ReportFileTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    QString at(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    QByteArray read(const char *name) const
    {
        QFile file(at(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("nothing");
    }
    mode_t modeOf(const char *name) const
    {
        struct stat info { };
        return ::lstat(QFile::encodeName(at(name)).constData(), &info) == 0 ? info.st_mode & 0777
                                                                            : 0;
    }
    void write(const char *name, const QByteArray &content) const
    {
        QFile file(at(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

private Q_SLOTS:
    void writesAFileForTheUserAlone()
    {
        const mode_t before = ::umask(0);
        const auto saved = saveReport(at("new"), "text\n", ExistingFile::refuse);
        ::umask(before);
        QVERIFY(saved);
        QCOMPARE(read("new"), "text\n");
        QCOMPARE(modeOf("new"), mode_t(0600));
    }

    void takesNoFilesPlaceUnasked()
    {
        write("old", "mine\n");
        QFile::setPermissions(at("old"), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
        const auto refused = saveReport(at("old"), "text\n", ExistingFile::refuse);
        QVERIFY(!refused);
        QCOMPARE(refused.error().english(),
                 u"%1 exists already. Choose another name for the report."_s.arg(at("old")));
        QCOMPARE(read("old"), "mine\n");
        QVERIFY(saveReport(at("old"), "text\n", ExistingFile::replace));
        QCOMPARE(read("old"), "text\n");
        QCOMPARE(modeOf("old"), mode_t(0600));
        QCOMPARE(QDir(m_folder.path()).entryList({u"old*"_s}, QDir::Files), QStringList{u"old"_s});
    }

    void refusesWhatIsNoFile()
    {
        write("target", "mine\n");
        QVERIFY(::symlink("target", QFile::encodeName(at("link")).constData()) == 0);
        QVERIFY(::symlink("nowhere", QFile::encodeName(at("dangling")).constData()) == 0);
        QVERIFY(QDir(m_folder.path()).mkdir(u"folder"_s));
        for (const char *name : {"link", "dangling", "folder"}) {
            for (const auto existing : {ExistingFile::refuse, ExistingFile::replace}) {
                const auto refused = saveReport(at(name), "text\n", existing);
                QVERIFY2(!refused, name);
                QVERIFY2(refused.error().english().contains(u"isn't a regular file"_s), name);
            }
        }
        QCOMPARE(read("target"), "mine\n");
        QVERIFY(!QFile::exists(at("nowhere")));
    }

    void saysWhyItCannot()
    {
        const auto failed = saveReport(at("no/folder"), "text\n", ExistingFile::refuse);
        QVERIFY(!failed);
        QCOMPARE(
            failed.error().english(),
            u"The report can't be written to %1: No such file or directory"_s.arg(at("no/folder")));
    }
};

VELDMARK_TEST(ReportFileTest)
#include "ReportFileTest.moc"
