#include "base/ProgramFile.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

class ProgramFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isAFileThatMayBeExecuted()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"tor"_s);
        QVERIFY(!isProgram(path)); // missing
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(!isProgram(path));
        QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        QVERIFY(isProgram(path));
        const QString link = folder.filePath(u"link"_s);
        QVERIFY(QFile::link(path, link));
        QVERIFY(isProgram(link));
        QVERIFY(!isProgram(folder.path())); // a folder may be entered, not executed
    }
};

VELDMARK_TEST(ProgramFileTest)
#include "ProgramFileTest.moc"
