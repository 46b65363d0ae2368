#include "platform/RunningApplications.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <gio/gdesktopappinfo.h>
#include <signal.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {

// A process that runs until it is ended, at the latest by this object's destructor.
class Running {
public:
    Running(const QString &program, const QStringList &arguments,
            const QProcessEnvironment &environment = {})
    {
        m_process.setProcessEnvironment(
            environment.isEmpty() ? QProcessEnvironment::systemEnvironment() : environment);
        m_process.start(program, arguments);
        if (!m_process.waitForStarted())
            qFatal("%s: %s", qPrintable(program), qPrintable(m_process.errorString()));
    }
    ~Running()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    qint64 id() const { return m_process.processId(); }
    QProcess &process() { return m_process; }
    // The first line that it prints; empty without one.
    QByteArray line()
    {
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(10'000))
                return {};
        }
        return m_process.readLine().trimmed();
    }

private:
    QProcess m_process;
};

} // namespace

// Real entries and real processes. Only the files of control groups, which an ordinary user cannot
// make, are written by hand.
class LinuxApplicationsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RunningApplications> m_applications;

    QString path(const QString &name) const { return m_folder->filePath(name); }

    QString write(const QString &name, const QByteArray &content, bool executable = false) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(name));
        if (executable)
            file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path(name);
    }

    QString entry(const QString &name, const QString &command, const QByteArray &more = {}) const
    {
        return write(name + u".desktop"_s,
                     "[Desktop Entry]\nType=Application\nName=Sample\nExec=" + command.toUtf8()
                         + '\n' + more);
    }

    // A program of this test alone: a copy of the shell.
    QString ownShell() const
    {
        const QString copy = path(u"sample-program"_s);
        if (!QFileInfo::exists(copy)
            && !QFile::copy(QFileInfo(u"/bin/sh"_s).canonicalFilePath(), copy))
            qFatal("cannot copy the shell");
        return QFileInfo(copy).canonicalFilePath();
    }

    bool isFound(const QString &entryPath, qint64 process) const
    {
        const auto copies = m_applications->copiesOf(entryPath);
        return std::find(copies.begin(), copies.end(), process) != copies.end();
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_applications = runningApplications();
    }

    void cleanup() { qunsetenv("LANGUAGE"); }

    void namesAreInTheUsersLanguage_data()
    {
        QTest::addColumn<QByteArray>("language");
        QTest::addColumn<QString>("name");
        QTest::newRow("german") << QByteArray("de") << u"Rechner"_s;
        QTest::newRow("german of austria") << QByteArray("de_AT") << u"Rechner"_s;
        QTest::newRow("portuguese of brazil") << QByteArray("pt_BR") << u"Calculadora brasileira"_s;
        QTest::newRow("portuguese") << QByteArray("pt") << u"Calculadora"_s;
        QTest::newRow("the second choice") << QByteArray("fr:de") << u"Rechner"_s;
        QTest::newRow("one without a translation") << QByteArray("fr") << u"Calculator"_s;
    }

    void namesAreInTheUsersLanguage()
    {
        QFETCH(QByteArray, language);
        const QString file = entry(
            u"calculator"_s, u"/bin/true"_s,
            "Name[de]=Rechner\nName[pt]=Calculadora\nName[pt_BR]=Calculadora brasileira\n");
        QFile content(file);
        QVERIFY(content.open(QIODevice::ReadWrite));
        const QByteArray text = content.readAll().replace("Name=Sample", "Name=Calculator");
        QVERIFY(content.seek(0) && content.write(text) && content.resize(text.size()));
        content.close();
        qputenv("LANGUAGE", language);
        QTEST(m_applications->displayName(file), "name");
    }

    void theFullNameIsPreferred()
    {
        QCOMPARE(m_applications->displayName(
                     entry(u"a"_s, u"/bin/true"_s, "X-GNOME-FullName=Sample of Samples\n")),
                 u"Sample of Samples"_s);
    }

    void whatIsNoEntryIsNamedAfterItsFile_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("no entry") << QByteArray("hello\n");
        QTest::newRow("no program")
            << QByteArray("[Desktop Entry]\nType=Application\nName=Other\nExec=/nowhere/program\n");
        QTest::newRow("a link") << QByteArray(
            "[Desktop Entry]\nType=Link\nName=Other\nURL=https://example.org\n");
    }

    void whatIsNoEntryIsNamedAfterItsFile()
    {
        QFETCH(QByteArray, content);
        QCOMPARE(m_applications->displayName(write(u"my-app.desktop"_s, content)), u"my-app"_s);
    }

    void aFileThatIsGoneIsNamedAfterItself()
    {
        QCOMPARE(m_applications->displayName(u"/nowhere/org.example.App.desktop"_s),
                 u"org.example.App"_s);
        QCOMPARE(m_applications->displayName(u"/usr/bin/program"_s), u"program"_s);
        QCOMPARE(m_applications->displayName(QString()), QString());
    }

    void aCopyIsKnownByItsProgram()
    {
        const QString file = entry(u"sample"_s, ownShell() + u" --new-window %U"_s);
        const QString other = entry(u"other"_s, u"/bin/true"_s);
        Running copy(ownShell(), {u"-c"_s, u"echo ready; read answer"_s});
        QCOMPARE(copy.line(), QByteArray("ready"));
        QVERIFY(isFound(file, copy.id()));
        QVERIFY(!isFound(other, copy.id()));
    }

    void aProgramBehindALinkIsTheSame()
    {
        QVERIFY(QFile::link(ownShell(), path(u"link"_s)));
        Running copy(ownShell(), {u"-c"_s, u"echo ready; read answer"_s});
        QCOMPARE(copy.line(), QByteArray("ready"));
        QVERIFY(isFound(entry(u"sample"_s, path(u"link"_s)), copy.id()));
    }

    void anInterpreterIsNotTheApplication()
    {
        // Otherwise every script of this interpreter would count as a copy of the application.
        const QString file = entry(u"sample"_s, ownShell() + u" /opt/sample/start"_s);
        Running script(ownShell(), {u"-c"_s, u"echo ready; read answer"_s});
        QCOMPARE(script.line(), QByteArray("ready"));
        QVERIFY(!isFound(file, script.id()));
    }

    void aCopyIsKnownByTheMarkOfItsLaunch()
    {
        const QString file = entry(u"sample"_s, u"/opt/wrapper start"_s);
        QProcessEnvironment marked = QProcessEnvironment::systemEnvironment();
        marked.insert(u"GIO_LAUNCHED_DESKTOP_FILE"_s, file);
        const QString program = write(u"wrapper"_s,
                                      "#!/bin/sh\n"
                                      "GIO_LAUNCHED_DESKTOP_FILE_PID=$$ exec /bin/sh -c "
                                      "'/bin/sh -c \"echo \\$\\$; read answer\"; :'\n",
                                      true);
        Running copy(program, {}, marked);
        const qint64 child = copy.line().toLongLong(); // it has inherited both marks
        QVERIFY(child > 1 && child != copy.id());
        const QString wrapped = entry(u"sample"_s, program + u" start"_s);
        QVERIFY(isFound(wrapped, copy.id()));
        QVERIFY(!isFound(wrapped, child));
        QVERIFY(!isFound(entry(u"other"_s, program + u" start"_s), copy.id()));
    }

    void aCopyThatGIOHasLaunchedIsFound()
    {
        const QString pidFile = path(u"pid"_s);
        const QString program = write(u"program"_s,
                                      "#!/bin/sh\necho $$ >'" + pidFile.toUtf8() + ".new'\nmv '"
                                          + pidFile.toUtf8() + ".new' '" + pidFile.toUtf8()
                                          + "'\nexec sleep 600\n",
                                      true);
        const QString file = entry(u"sample"_s, program + u" start"_s);
        GDesktopAppInfo *const info = g_desktop_app_info_new_from_filename(
            QFile::encodeName(file).constData());
        QVERIFY(info);
        QVERIFY(g_app_info_launch(G_APP_INFO(info), nullptr, nullptr, nullptr));
        g_object_unref(info);
        QTRY_VERIFY(QFileInfo::exists(pidFile));
        QFile content(pidFile);
        QVERIFY(content.open(QIODevice::ReadOnly));
        const qint64 process = content.readAll().trimmed().toLongLong();
        QVERIFY(process > 1);
        const bool found = isFound(file, process);
        m_applications->askToQuit(process);
        QTRY_VERIFY(m_applications->hasEnded(process));
        QVERIFY(found);
        QVERIFY(!isFound(file, process));
    }

    void aCopyIsKnownByItsControlGroup_data()
    {
        QTest::addColumn<QByteArray>("groups");
        QTest::addColumn<bool>("found");
        const QByteArray slice = "0::/user.slice/user-1000.slice/user@1000.service/app.slice/";
        QTest::newRow("gnome") << slice + "app-gnome-org.example.My\\x2dApp-4711.scope\n" << true;
        QTest::newRow("kde") << slice + "app-org.example.My\\x2dApp@0a1b2c.service\n" << true;
        QTest::newRow("autostarted") << slice + "app-org.example.My\\x2dApp@autostart.service\n"
                                     << true;
        QTest::newRow("without a number") << slice + "app-org.example.My\\x2dApp.service\n" << true;
        QTest::newRow("among others")
            << "1:name=systemd:/\n" + slice + "app-gnome-org.example.My\\x2dApp-1.scope\n"
            << true;
        QTest::newRow("a longer name") << slice + "app-org.example.My\\x2dAppendix@1.service\n"
                                       << false;
        QTest::newRow("the end of another name")
            << slice + "app-my.org.example.My\\x2dApp@1.service\n"
            << false;
        QTest::newRow("not escaped") << slice + "app-gnome-org.example.My-App-4711.scope\n"
                                     << false;
        QTest::newRow("a group below")
            << slice + "app-gnome-org.example.My\\x2dApp-4711.scope/tab-1\n"
            << false;
        QTest::newRow("dots are dots") << slice + "app-orgXexample.My\\x2dApp@1.service\n" << false;
        QTest::newRow("another service") << slice + "dbus.service\n" << false;
        QTest::newRow("nothing") << QByteArray() << false;
    }

    void aCopyIsKnownByItsControlGroup()
    {
        QFETCH(QByteArray, groups);
        QFETCH(bool, found);
        write(u"proc/4711/cgroup"_s, groups);
        write(u"proc/self/cgroup"_s, groups); // is no process of its own
        m_applications = runningApplications(path(u"proc"_s));
        const auto copies = m_applications->copiesOf(
            u"/usr/share/applications/org.example.My-App.desktop"_s);
        QCOMPARE(copies, found ? std::vector<qint64>{4711} : std::vector<qint64>());
    }

    // An endless file must not block the search: it reads a MiB of each.
    void ofWhatAProcessTellsAMiBIsRead_data()
    {
        QTest::addColumn<qsizetype>("before");
        QTest::addColumn<bool>("found");
        QTest::newRow("within it") << qsizetype(1000) << true;
        QTest::newRow("behind it") << qsizetype(1 << 20) << false;
    }

    void ofWhatAProcessTellsAMiBIsRead()
    {
        QFETCH(qsizetype, before);
        QFETCH(bool, found);
        const QString file = entry(u"sample"_s, u"/opt/wrapper start"_s);
        write(u"proc/4711/environ"_s,
              "A=" + QByteArray(before, 'x') + '\0' + "GIO_LAUNCHED_DESKTOP_FILE="
                  + QFile::encodeName(file) + '\0' + "GIO_LAUNCHED_DESKTOP_FILE_PID=4711" + '\0');
        m_applications = runningApplications(path(u"proc"_s));
        QCOMPARE(m_applications->copiesOf(file),
                 found ? std::vector<qint64>{4711} : std::vector<qint64>());
    }

    void thisProgramIsNotItsOwnCopy()
    {
        const QString file = entry(u"self"_s, QCoreApplication::applicationFilePath());
        Running other(ownShell(), {u"-c"_s, u"echo ready; read answer"_s});
        QCOMPARE(other.line(), QByteArray("ready"));
        QVERIFY(!isFound(file, getpid()));
        QVERIFY(isFound(entry(u"sample"_s, ownShell()), other.id())); // though others are found
    }

    void otherPeoplesProcessesAreNotTouched()
    {
        if (geteuid() != 0)
            QSKIP("only root can start a process as another user");
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755)));
        const QString shell = ownShell();
        QVERIFY(QFile::setPermissions(shell, QFile::Permissions(0x7755)));
        const QString file = entry(u"sample"_s, shell);
        const QStringList script = {u"-c"_s, u"echo ready; read answer"_s};
        Running mine(shell, script);
        Running theirs(u"/usr/bin/setpriv"_s,
                       QStringList{u"--reuid"_s, u"65534"_s, u"--regid"_s, u"65534"_s,
                                   u"--clear-groups"_s, shell}
                           + script);
        QCOMPARE(mine.line(), QByteArray("ready"));
        QCOMPARE(theirs.line(), QByteArray("ready"));
        QVERIFY(isFound(file, mine.id()));
        QVERIFY(!isFound(file, theirs.id()));
    }

    void quittingIsAskedForAndMayBeDeclined()
    {
        Running polite(
            ownShell(),
            {u"-c"_s,
             u"trap 'echo asked; exit 0' TERM; echo ready; while :; do sleep 0.01; done"_s});
        Running stubborn(
            ownShell(),
            {u"-c"_s, u"trap 'echo asked' TERM; echo ready; while :; do sleep 0.01; done"_s});
        QCOMPARE(polite.line(), QByteArray("ready"));
        QCOMPARE(stubborn.line(), QByteArray("ready"));
        QVERIFY(!m_applications->hasEnded(polite.id()) && !m_applications->hasEnded(stubborn.id()));
        m_applications->askToQuit(polite.id());
        m_applications->askToQuit(stubborn.id());
        const qint64 process = polite.id();
        // Without the event loop the child is not reaped: after its end it is still in the process
        // table.
        for (int round = 0; round < 1000 && !m_applications->hasEnded(process); ++round)
            ::usleep(10'000);
        QVERIFY(m_applications->hasEnded(process));
        QVERIFY(QFileInfo::exists(u"/proc/%1"_s.arg(process)));
        QVERIFY(polite.process().waitForFinished());
        QVERIFY(m_applications->hasEnded(process)); // and when it is gone altogether
        QCOMPARE(polite.line(), QByteArray("asked"));
        QCOMPARE(stubborn.line(), QByteArray("asked"));
        QVERIFY(!m_applications->hasEnded(stubborn.id()));
    }

    void aProcessNameMayHoldAnything()
    {
        write(u"proc/7/stat"_s, "7 (a) Z (b) S 1 7 7 0");
        write(u"proc/8/stat"_s, "8 (a) S (b) Z 1 7 7 0");
        write(u"proc/9/stat"_s, "");
        m_applications = runningApplications(path(u"proc"_s));
        QVERIFY(!m_applications->hasEnded(7));
        QVERIFY(m_applications->hasEnded(8));
        QVERIFY(m_applications->hasEnded(9));
    }

    void aBareInterpreterIsNobodysProgram_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("program");
        QTest::newRow("python") << u"python3"_s << u"/usr/bin/python3"_s;
        QTest::newRow("python, with a place for files")
            << u"/usr/bin/python3 %F"_s << u"/usr/bin/python3"_s;
        QTest::newRow("shell") << u"bash"_s << u"/bin/bash"_s;
        QTest::newRow("perl") << u"perl"_s << u"/usr/bin/perl"_s;
    }

    void aBareInterpreterIsNobodysProgram()
    {
        QFETCH(QString, command);
        QFETCH(QString, program);
        const QHash<QString, QStringList> waiting = {
            {u"/usr/bin/python3"_s, {u"-c"_s, u"print('ready', flush=True); input()"_s}},
            {u"/bin/bash"_s, {u"-c"_s, u"echo ready; read answer"_s}},
            {u"/usr/bin/perl"_s, {u"-e"_s, u"$| = 1; print \"ready\\n\"; <STDIN>"_s}}};
        const QString file = entry(u"sample"_s, command);
        Running other(program, waiting.value(program));
        QCOMPARE(other.line(), QByteArray("ready"));
        QVERIFY(!isFound(file, other.id()));
        // The mark of their launch still identifies its own copies.
        QProcessEnvironment marked = QProcessEnvironment::systemEnvironment();
        marked.insert(u"GIO_LAUNCHED_DESKTOP_FILE"_s, file);
        const QString launch = u"GIO_LAUNCHED_DESKTOP_FILE_PID=$$ exec %1 \"$@\""_s.arg(program);
        Running copy(u"/bin/sh"_s, QStringList{u"-c"_s, launch, u"sh"_s} + waiting.value(program),
                     marked);
        QCOMPARE(copy.line(), QByteArray("ready"));
        QVERIFY(isFound(file, copy.id()));
    }
};

VELDMARK_TEST(LinuxApplicationsTest)
#include "LinuxApplicationsTest.moc"
