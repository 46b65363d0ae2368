#include "platform/RunningApplications.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

// With real processes: copies of `sleep` under a name of their own.
class RunningApplicationsTest : public QObject {
    Q_OBJECT

    QString entry(const QString &name, const QString &lines)
    {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            return {};
        file.write((u"[Desktop Entry]\nType=Application\n"_s + lines).toUtf8());
        return path;
    }

    QTemporaryDir m_folder;
    QString m_program;
    const std::unique_ptr<RunningApplications> m_applications = runningApplications();

private Q_SLOTS:
    void initTestCase()
    {
        m_program = m_folder.filePath(u"own-program"_s);
        QVERIFY(QFile::copy(u"/usr/bin/sleep"_s, m_program));
    }

    void readsTheNameFromTheEntry()
    {
        QCOMPARE(m_applications->displayName(entry(u"a.desktop"_s, u"Name=An App\nExec=sleep\n"_s)), u"An App"_s);
        QCOMPARE(m_applications->displayName(u"/nowhere/thing.desktop"_s), u"thing"_s);
    }

    void findsACopyByItsFileAndAsksItToQuit()
    {
        const QString path = entry(u"b.desktop"_s, u"Name=B\nExec="_s + m_program + u" %U\n"_s);
        QVERIFY(m_applications->copiesOf(path).empty());
        QProcess copy;
        copy.start(m_program, {u"1000"_s});
        QVERIFY(copy.waitForStarted());
        QTRY_COMPARE(m_applications->copiesOf(path), std::vector<qint64>({copy.processId()}));
        const qint64 process = copy.processId();
        QVERIFY(!m_applications->hasEnded(process));
        m_applications->askToQuit(process);
        QVERIFY(copy.waitForFinished());
        QVERIFY(m_applications->hasEnded(process));
        QVERIFY(m_applications->copiesOf(path).empty());
    }

    void leavesOthersOfTheSameInterpreterAlone()
    {
        const QString path = entry(u"c.desktop"_s, u"Name=C\nExec="_s + m_program + u" script.py %U\n"_s);
        QProcess other;
        other.start(m_program, {u"1000"_s});
        QVERIFY(other.waitForStarted());
        QVERIFY(m_applications->copiesOf(path).empty());
        other.kill();
        QVERIFY(other.waitForFinished());
    }

    void findsACopyByTheMarkOfItsStart()
    {
        const QString path = entry(u"d.desktop"_s, u"Name=D\nExec=sh -c true\n"_s);
        QProcess copy; // the shell becomes the program, so the number is its own
        copy.start(u"/bin/sh"_s, {u"-c"_s, u"GIO_LAUNCHED_DESKTOP_FILE=\"$0\" GIO_LAUNCHED_DESKTOP_FILE_PID=$$ exec \"$1\" 1000"_s,
                                  path, m_program});
        QVERIFY(copy.waitForStarted());
        QTRY_COMPARE(m_applications->copiesOf(path), std::vector<qint64>({copy.processId()}));
        copy.kill();
        QVERIFY(copy.waitForFinished());
    }
};

QTEST_GUILESS_MAIN(RunningApplicationsTest)
#include "RunningApplicationsTest.moc"
