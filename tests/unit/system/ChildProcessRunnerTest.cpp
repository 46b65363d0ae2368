#include "system/ChildProcessRunner.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <signal.h>
#include <sys/stat.h>

using namespace veldmark;

namespace {

const QString sh = QStringLiteral("/bin/sh");

QCoro::Task<Result<ProcessResult, StartError>> start(ProcessRunner &runner, const char *script,
                                                     QStringList arguments = {})
{
    return runner.run(
        sh,
        QStringList{QStringLiteral("-c"), QString::fromUtf8(script), QStringLiteral("sh")}
            + arguments);
}

// The result of a script that starts; fails the test by throwing when it does not.
ProcessResult resultOf(const char *script, QStringList arguments = {})
{
    ChildProcessRunner runner;
    return QCoro::waitFor(start(runner, script, arguments)).value();
}

QString startErrorOf(const QString &executable, QStringList arguments = {})
{
    ChildProcessRunner runner;
    const auto result = QCoro::waitFor(runner.run(executable, arguments));
    return result ? QStringLiteral("(started)") : result.error().description().english();
}

// Ended, possibly still a zombie.
bool isGone(int process)
{
    QFile stat(QStringLiteral("/proc/%1/stat").arg(process));
    if (!stat.open(QIODevice::ReadOnly))
        return true;
    const QByteArray line = stat.readAll();
    return line.mid(line.lastIndexOf(')') + 2, 1) == "Z";
}

void touch(const QString &path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

} // namespace

class ChildProcessRunnerTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void aSilentChildHasAStatusAndNoOutput()
    {
        const ProcessResult result = resultOf("exit 0");
        QCOMPARE(result.status, 0);
        QVERIFY(result.stdout.isEmpty());
        QVERIFY(result.stderr.isEmpty());
    }

    void aNonZeroStatusIsNoError()
    {
        const ProcessResult result = resultOf("echo fine; echo 'went wrong' >&2; exit 1");
        QCOMPARE(result.status, 1);
        QCOMPARE(result.stdout, QStringLiteral("fine\n"));
        QCOMPARE(result.stderr, QStringLiteral("went wrong\n"));
    }

    void theStatusOfAKilledChildIsTheSignal()
    {
        QCOMPARE(resultOf("kill -KILL $$").status, SIGKILL);
        QCOMPARE(resultOf("echo last words; kill -TERM $$").stdout, QStringLiteral("last words\n"));
    }

    void whatCannotStartIsTheSystemsError()
    {
        QTemporaryDir folder;
        touch(folder.filePath(QStringLiteral("plain")));
        QCOMPARE(startErrorOf(folder.filePath(QStringLiteral("missing"))),
                 QStringLiteral("No such file or directory"));
        QCOMPARE(startErrorOf(folder.filePath(QStringLiteral("plain"))),
                 QStringLiteral("Permission denied"));
        QCOMPARE(startErrorOf(folder.path()), QStringLiteral("Permission denied"));
        QCOMPARE(startErrorOf(QString()), QStringLiteral("No such file or directory"));
    }

    void aBareNameIsNotLookedUpInThePath()
    {
        QCOMPARE(resultOf("command -v sh >/dev/null").status, 0); // the path would have it
        QCOMPARE(startErrorOf(QStringLiteral("sh")), QStringLiteral("No such file or directory"));
    }

    void anArgumentThatWouldBeCutShortIsRefused()
    {
        const QString cut = QStringLiteral("ab") + QChar(u'\0') + QStringLiteral("c");
        QCOMPARE(startErrorOf(sh, {QStringLiteral("-c"), cut}), QStringLiteral("Invalid argument"));
    }

    void argumentsArriveUnchanged()
    {
        const QStringList hostile = {QString::fromUtf8(""),
                                     QStringLiteral("a b"),
                                     QStringLiteral("'\"\\$HOME`id`"),
                                     QStringLiteral("*\n\t;&|"),
                                     QString::fromUtf8("Grüße 漢字"),
                                     QStringLiteral("--flag")};
        const ProcessResult result = resultOf("for a; do printf '%s|' \"$a\"; done", hostile);
        QCOMPARE(result.stdout, hostile.join(u'|') + u'|');
    }

    void invalidUtf8IsRepaired()
    {
        const ProcessResult result = resultOf("printf 'a\\377b'; printf '\\303' >&2");
        QCOMPARE(result.stdout,
                 QStringLiteral("a") + QChar(QChar::ReplacementCharacter) + QStringLiteral("b"));
        QCOMPARE(result.stderr, QString(QChar(QChar::ReplacementCharacter)));
    }

    void megabytesOnEitherStreamNeverStall()
    {
        const ProcessResult result = resultOf(
            "head -c 3000000 /dev/zero | tr '\\0' e >&2; head -c 3000000 /dev/zero | tr '\\0' o;"
            "head -c 500000 /dev/zero | tr '\\0' f >&2; exit 3");
        QCOMPARE(result.status, 3);
        QCOMPARE(result.stdout.size(), 3'000'000);
        QCOMPARE(result.stdout.count(u'o'), 3'000'000);
        QCOMPARE(result.stderr.count(u'e'), 3'000'000);
        QCOMPARE(result.stderr.count(u'f'), 500'000);
    }

    void environmentAndFolderAreInherited()
    {
        qputenv("VELDMARK_TEST", "from outside");
        const ProcessResult result = resultOf("printf '%s|' \"$VELDMARK_TEST\"; pwd -P");
        qunsetenv("VELDMARK_TEST");
        QCOMPARE(result.stdout,
                 QStringLiteral("from outside|%1\n").arg(QDir::current().canonicalPath()));
    }

    void standardInputIsThisProcesssOwn()
    {
        struct stat own { };
        QCOMPARE(::fstat(0, &own), 0);
        const ProcessResult result = resultOf(
            "stat -L -c %i /dev/stdin || stat -L -f %i /dev/stdin");
        QCOMPARE(result.stdout.trimmed(), QString::number(own.st_ino));
    }

    void aProcessLeftBehindWithThePipesDoesNotProlongTheRun()
    {
        const ProcessResult result = resultOf(
            "sleep 600 & head -c 60000 /dev/zero | tr '\\0' x; echo; echo $!");
        const QStringList lines = result.stdout.split(u'\n');
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines.at(0).size(), 60'000);
        const int leftBehind = lines.at(1).toInt();
        QVERIFY(leftBehind > 1);
        QCOMPARE(::kill(leftBehind, 0), 0); // it still lives, so the run did not wait for it
        QCOMPARE(::kill(leftBehind, SIGKILL), 0);
    }

    void runsAreUnderWayAtOnce()
    {
        QTemporaryDir folder;
        const QString fifo = folder.filePath(QStringLiteral("fifo"));
        QCOMPARE(::mkfifo(qPrintable(fifo), 0600), 0);
        ChildProcessRunner runner;
        auto reader = start(runner, "cat \"$1\"", {fifo}); // ends only when the writer has run
        auto writer = start(runner, "echo met > \"$1\"", {fifo});
        QTRY_VERIFY(reader.isReady() && writer.isReady());
        QCOMPARE(QCoro::waitFor(std::move(reader))->stdout, QStringLiteral("met\n"));
    }

    void destroyingTheRunnerEndsTheWaitButNotTheChild()
    {
        QTemporaryDir folder;
        auto runner = std::make_unique<ChildProcessRunner>();
        auto task = start(*runner,
                          "cd \"$1\"; touch started; while [ ! -e go ]; do sleep 0.01; done;"
                          "head -c 300000 /dev/zero; touch finished",
                          {folder.path()});
        QTRY_VERIFY(QFile::exists(folder.filePath(QStringLiteral("started"))));
        runner.reset();
        QTRY_VERIFY(task.isReady());
        QVERIFY(!QCoro::waitFor(std::move(task)));
        QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("finished"))));
        touch(folder.filePath(QStringLiteral("go")));
        QTRY_VERIFY(QFile::exists(folder.filePath(QStringLiteral("finished"))));
    }

    void aStopKillsTheProgramAndWhatItHasStarted()
    {
        QTemporaryDir folder;
        ChildProcessRunner runner;
        StopSource stop;
        auto task = runner.runUntil(
            QStringLiteral("/bin/sh"),
            {QStringLiteral("-c"),
             QStringLiteral("cd \"$1\"; sleep 600 & echo $! >new; mv new child; wait"),
             QStringLiteral("sh"), folder.path()},
            stop.get_token());
        const QString file = folder.filePath(QStringLiteral("child"));
        QTRY_VERIFY(QFile::exists(file));
        QFile content(file);
        QVERIFY(content.open(QIODevice::ReadOnly));
        const int child = content.readAll().trimmed().toInt();
        QVERIFY(child > 1 && ::kill(child, 0) == 0);
        QVERIFY(!task.isReady());
        stop.request_stop();
        QTRY_VERIFY(task.isReady());
        QCOMPARE(QCoro::waitFor(std::move(task))->status, SIGKILL);
        QTRY_VERIFY(isGone(child));
    }

    void aStopBeforeTheStartKillsAtOnce()
    {
        ChildProcessRunner runner;
        StopSource stop;
        stop.request_stop();
        auto task = runner.runUntil(QStringLiteral("/bin/sleep"), {QStringLiteral("600")},
                                    stop.get_token());
        QTRY_VERIFY(task.isReady());
        QCOMPARE(QCoro::waitFor(std::move(task))->status, SIGKILL);
    }

    void aStopAfterTheEndDoesNothing()
    {
        ChildProcessRunner runner;
        StopSource stop;
        auto task = runner.runUntil(QStringLiteral("/bin/sh"),
                                    {QStringLiteral("-c"), QStringLiteral("echo out; exit 3")},
                                    stop.get_token());
        QTRY_VERIFY(task.isReady());
        stop.request_stop();
        const auto result = QCoro::waitFor(std::move(task));
        QCOMPARE(result->status, 3);
        QCOMPARE(result->stdout, QStringLiteral("out\n"));
    }

    void whatMayBeStoppedHasNoTerminalAndIsOtherwiseTheSame()
    {
        ChildProcessRunner runner;
        const StopSource stop;
        auto task = runner.runUntil(QStringLiteral("/nowhere/program"), {}, stop.get_token());
        QTRY_VERIFY(task.isReady());
        QCOMPARE(QCoro::waitFor(std::move(task)).error().description(),
                 QStringLiteral("No such file or directory"));
        auto session = runner.runUntil(
            QStringLiteral("/bin/sh"),
            {QStringLiteral("-c"), QStringLiteral("ps -o sid= -p $$; echo $$")}, stop.get_token());
        QTRY_VERIFY(session.isReady());
        const QStringList lines
            = QCoro::waitFor(std::move(session))->stdout.simplified().split(u' ');
        QCOMPARE(lines.value(0), lines.value(1)); // it leads a session of its own
    }

    void aCallerThatNoLongerWaitsHurtsNothing()
    {
        QTemporaryDir folder;
        ChildProcessRunner runner;
        {
            auto dropped = start(runner, "echo $$ >\"$1/new\"; mv \"$1/new\" \"$1/finished\"",
                                 {folder.path()});
        }
        QFile finished(folder.filePath(QStringLiteral("finished")));
        QTRY_VERIFY(finished.exists());
        // Runs until the child has been reaped and its objects are gone: nothing else ends this
        // program's loop.
        QVERIFY(finished.open(QIODevice::ReadOnly));
        const QString child = QStringLiteral("/proc/")
            + QString::fromLatin1(finished.readAll().trimmed());
        QTRY_VERIFY(!QFile::exists(child));
        QTest::qWait(0);
    }
};

VELDMARK_TEST(ChildProcessRunnerTest)
#include "ChildProcessRunnerTest.moc"
