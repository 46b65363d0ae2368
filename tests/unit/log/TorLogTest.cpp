#include "log/TorLog.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef __linux__
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#endif

#include <array>
#include <cerrno>
#include <cstddef>
#include <memory>
#include <thread>

using namespace veldmark;
using Kind = TorLog::Snapshot::Kind;

namespace {
QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

QStringList raws(const TorLog::Snapshot &snapshot)
{
    QStringList list;
    for (const TorLogLine &line : snapshot.lines())
        list.append(line.raw);
    return list;
}
} // namespace

class TorLogTest : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<TorLog> m_log;

    void write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)
            || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(path));
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        const PlatformProfile profile = PlatformProfile::linux(Places::below(m_folder->path()));
        QVERIFY(QDir().mkpath(profile.runDirectory));
        m_log = std::make_unique<TorLog>(profile);
    }

    void takesPathsAndPrefixFromTheProfile()
    {
        QVERIFY(m_log->startupPath().endsWith(text("/var/lib/veldmark/run/start.out")));
        QVERIFY(m_log->noticesPath().endsWith(text("/var/lib/veldmark/run/notices.log")));
        QVERIFY(m_log->launcherPath().endsWith(text("/var/lib/veldmark/run/launcher.out")));
        const PlatformProfile mac = PlatformProfile::macos(Places::below(m_folder->path()));
        const TorLog macLog(mac);
        QVERIFY(QDir().mkpath(macLog.runDirectory()));
        QVERIFY(macLog.launcherPath().endsWith(text("/var/db/veldmark/run/launchd.out")));
        write(macLog.launcherPath(), "exited with last exit code = 1\n");
        QCOMPARE(raws(macLog.read()), QStringList{text("launchd: exited with last exit code = 1")});
        QVERIFY(macLog.read().lines().front().level == TorLogLine::Level::error);
    }

    void withoutFilesOrLinesItIsEmpty()
    {
        QVERIFY(m_log->read() == TorLog::Snapshot());
        write(m_log->noticesPath(), "");
        write(m_log->startupPath(), " \n\r\n\t\n");
        QVERIFY(m_log->read().kind() == Kind::empty);
        QVERIFY(QDir(m_log->runDirectory()).removeRecursively());
        QVERIFY(m_log->read().kind() == Kind::empty);
    }

    void mergesTheThreeFiles()
    {
        write(m_log->startupPath(), "only at start\n  shared  \nalso only at start\nshared two");
        write(m_log->noticesPath(),
              "shared\nNov 16 00:41:07.123 [warn] Guard is down\r\n\n shared two\nshared\n");
        write(m_log->launcherPath(), "shared\nstarted\n");
        const TorLog::Snapshot snapshot = m_log->read();
        QCOMPARE(
            raws(snapshot),
            (QStringList{text("only at start"), text("also only at start"), text("shared"),
                         text("Nov 16 00:41:07.123 [warn] Guard is down"), text("shared two"),
                         text("shared"), text("launcher: shared"), text("launcher: started")}));
        for (int i = 0; i < snapshot.lines().size(); ++i)
            QCOMPARE(snapshot.lines()[i].id, i);
        QCOMPARE(snapshot.lines()[3].time, text("Nov 16 00:41:07.123"));
        QVERIFY(snapshot.lines()[3].level == TorLogLine::Level::warning);
        QVERIFY(snapshot == m_log->read());
    }

    void keepsTheLastThreeThousandLines_data()
    {
        QTest::addColumn<int>("startup");
        QTest::addColumn<int>("notices");
        QTest::addColumn<int>("launcher");
        QTest::newRow("one file") << 0 << 3500 << 0;
        QTest::newRow("across files") << 1500 << 1000 << 1000;
        QTest::newRow("the launcher's alone") << 10 << 10 << 3500;
        QTest::newRow("exactly as many") << 1000 << 1000 << 1000;
        QTest::newRow("start-up alone") << 3500 << 0 << 0;
        QTest::newRow("one too many") << 1 << 2999 << 1;
    }
    void keepsTheLastThreeThousandLines()
    {
        QFETCH(int, startup);
        QFETCH(int, notices);
        QFETCH(int, launcher);
        QStringList all;
        const auto fill = [&](const QString &path, int count, const QString &name,
                              const QString &prefix) {
            QByteArray content;
            for (int i = 0; i < count; ++i) {
                const QString line = QStringLiteral("%1 %2").arg(name).arg(i);
                content += line.toUtf8() + '\n';
                all.append(prefix + line);
            }
            write(path, content);
        };
        fill(m_log->startupPath(), startup, text("s"), QString());
        fill(m_log->noticesPath(), notices, text("n"), QString());
        fill(m_log->launcherPath(), launcher, text("l"), text("launcher: "));
        const TorLog::Snapshot snapshot = m_log->read();
        QCOMPARE(raws(snapshot), all.mid(all.size() - std::min<qsizetype>(all.size(), 3000)));
        QCOMPARE(snapshot.lines().constFirst().id, 0);
        QCOMPARE(snapshot.lines().constLast().id, static_cast<int>(snapshot.lines().size()) - 1);
    }

    void startupLinesAreComparedWithAllOfTorsLog()
    {
        QByteArray notices;
        for (int i = 0; i < 2990; ++i)
            notices += "n " + QByteArray::number(i) + '\n';
        write(m_log->noticesPath(), notices);
        write(m_log->startupPath(), "x\nn 0\nn 2989\ny\n");
        const QStringList lines = raws(m_log->read());
        QCOMPARE(lines.size(), 2992);
        QCOMPARE(lines.mid(0, 3), (QStringList{text("x"), text("y"), text("n 0")}));
    }

    void readsOnlyTheEndOfALongFile()
    {
        // Lines of 100 bytes: a cut 1,000,000 bytes before the end falls into the middle of one.
        QByteArray content;
        for (int i = 0; i < 15000; ++i)
            content += QByteArray::number(i).rightJustified(20, '0') + QByteArray(79, '.') + '\n';
        QCOMPARE(content.size(), 1500000);
        content += "the end\n";
        write(m_log->noticesPath(), content);
        write(m_log->startupPath(), QByteArray(20, '0') + QByteArray(79, '.') + '\n');
        const QStringList lines = raws(m_log->read());
        QCOMPARE(lines.size(), 3000);
        QCOMPARE(lines.constLast(), text("the end"));
    }

    void dropsTheCutLineAtTheStartOfTheEnd()
    {
        // 250 lines of 6,000 bytes; the last million bytes begin 4,000 bytes into a line.
        QByteArray content;
        for (int i = 0; i < 250; ++i)
            content += QByteArray::number(i).rightJustified(5, '0') + QByteArray(5994, 'x') + '\n';
        QCOMPARE(content.size(), 1500000);
        write(m_log->noticesPath(), content);
        const QStringList lines = raws(m_log->read());
        QCOMPARE(lines.size(), 166);
        QVERIFY(lines.constFirst().startsWith(text("00084")));
        QVERIFY(lines.constLast().startsWith(text("00249")));
    }

    void aFileOfExactlyTheLimitIsReadWhole()
    {
        write(m_log->noticesPath(), "first\n" + QByteArray(999994 - 1, 'x') + '\n');
        QCOMPARE(m_log->read().lines().size(), 2);
        write(m_log->noticesPath(), "first\n" + QByteArray(999994, 'x') + '\n');
        QCOMPARE(m_log->read().lines().size(), 1);
    }

    void anEndWithoutALineFeedIsOnlyACutLine()
    {
        write(m_log->noticesPath(), QByteArray(1500000, 'x'));
        QVERIFY(m_log->read().kind() == Kind::empty);
    }

    void invalidBytesAreReplaced()
    {
        write(m_log->noticesPath(), QByteArray("a\xff\xfe z\n\0b\nok\n", 12));
        const QStringList lines = raws(m_log->read());
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines[0], QStringLiteral("a\uFFFD\uFFFD z"));
        QCOMPARE(lines[2], text("ok"));
    }

    void aFileThatCannotBeOpenedIsUnreadable()
    {
        if (::geteuid() != 0)
            QSKIP("needs another account to read as");
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755)));
        write(m_log->noticesPath(), "secret\n");
        QVERIFY(m_log->read().kind() == Kind::lines);
        QVERIFY(QFile::setPermissions(m_log->noticesPath(), QFile::ReadOwner));
        const auto asRoot = qScopeGuard([] { (void)::seteuid(0); });
        QCOMPARE(::seteuid(65534), 0);
        QVERIFY(m_log->read().kind() == Kind::unreadable); // the other two are missing

        QCOMPARE(::seteuid(0), 0);
        write(m_log->startupPath(), "open to all\n");
        QVERIFY(QFile::setPermissions(m_log->startupPath(),
                                      QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
        QCOMPARE(::seteuid(65534), 0);
        QCOMPARE(raws(m_log->read()), QStringList{text("open to all")});

        QCOMPARE(::seteuid(0), 0);
        QVERIFY(QFile::setPermissions(m_log->runDirectory(), QFile::ReadOwner | QFile::ExeOwner));
        QCOMPARE(::seteuid(65534), 0);
        QVERIFY(m_log->read().kind() == Kind::unreadable); // the folder may not be entered
    }

    void whatIsNoFileIsUnreadableAndNeverWaitedFor_data()
    {
        QTest::addColumn<QString>("kind");
        for (const char *kind :
             {"folder", "pipe", "link to a pipe", "link to a folder", "endless device"})
            QTest::newRow(kind) << text(kind);
    }
    void whatIsNoFileIsUnreadableAndNeverWaitedFor()
    {
        QFETCH(QString, kind);
        const QString path = m_log->noticesPath();
        const QString target = m_folder->filePath(text("target"));
        if (kind == u"folder") {
            QVERIFY(QDir().mkpath(path));
        } else if (kind == u"endless device") {
            QVERIFY(QFile::link(text("/dev/zero"), path));
        } else if (kind == u"link to a folder") {
            QVERIFY(QDir().mkpath(target));
            QVERIFY(QFile::link(target, path));
        } else {
            const QString pipe = kind == u"pipe" ? path : target;
            QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
            if (pipe != path)
                QVERIFY(QFile::link(pipe, path));
        }
        QVERIFY(m_log->read().kind() == Kind::unreadable);
        QVERIFY(!m_log->signature().startsWith(text("0:0.0|0:0.0")));
        write(m_log->startupPath(), "started\n");
        QCOMPARE(raws(m_log->read()), QStringList{text("started")});
    }

    void aLinkToNothingIsNoFile()
    {
        QVERIFY(QFile::link(m_folder->filePath(text("none")), m_log->noticesPath()));
        QVERIFY(m_log->read().kind() == Kind::empty);
    }

    // What a call of another part has left in errno is no word on the reading.
    void anInterruptionFromBeforeDoesNotCount()
    {
        write(m_log->noticesPath(), "one\n");
        errno = EINTR;
        QCOMPARE(raws(m_log->read()), QStringList{text("one")});
    }

    // As a file that shrinks while it is read. The kernel's own files pretend to fill a page.
    void aFileThatIsShorterThanItsSizeIsReadToItsEnd()
    {
        const QString shorter = text("/sys/devices/system/cpu/possible");
        QFile file(shorter);
        if (!file.open(QIODevice::ReadOnly))
            QSKIP("needs a file of the kernel's that is shorter than its size");
        const QString content = QString::fromUtf8(file.readAll()).trimmed();
        QVERIFY(!content.isEmpty() && content.size() < file.size() - 1);
        QVERIFY(QFile::link(shorter, m_log->noticesPath()));
        errno = EINTR;
        QCOMPARE(raws(m_log->read()), QStringList{content});
    }

    void aDiskThatFailsIsNotAskedForever()
    {
#ifndef __linux__
        QSKIP("needs a kernel that refuses calls");
#else
        write(m_log->noticesPath(), "one\n");
        QVERIFY(m_log->read().kind() == Kind::lines);
        bool isRefused = false;
        TorLog::Snapshot snapshot;
        std::thread([&] { // the kernel refuses that thread's readings alone
            std::array<sock_filter, 4> program = {
                sock_filter{BPF_LD | BPF_W | BPF_ABS, 0, 0, offsetof(seccomp_data, nr)},
                sock_filter{BPF_JMP | BPF_JEQ | BPF_K, 0, 1, __NR_pread64},
                sock_filter{BPF_RET | BPF_K, 0, 0, SECCOMP_RET_ERRNO | EIO},
                sock_filter{BPF_RET | BPF_K, 0, 0, SECCOMP_RET_ALLOW}};
            const sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
            isRefused = ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0
                && ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
            snapshot = m_log->read();
        })
            .join();
        QVERIFY(isRefused);
        QVERIFY(snapshot.kind() == Kind::empty);
#endif
    }

    void followsAFileThatRotatesAndShrinks()
    {
        write(m_log->noticesPath(), "one\ntwo\nthree\n");
        const QString full = m_log->signature();
        write(m_log->noticesPath(), "four\n");
        QVERIFY(m_log->signature() != full);
        QCOMPARE(raws(m_log->read()), QStringList{text("four")});
        QVERIFY(QFile::rename(m_log->noticesPath(), m_log->noticesPath() + text(".1")));
        QVERIFY(m_log->read().kind() == Kind::empty);
        write(m_log->noticesPath(), "five\n");
        QCOMPARE(raws(m_log->read()), QStringList{text("five")});
    }

    void theSignatureNamesSizeAndTimeOfEachFile()
    {
        QCOMPARE(m_log->signature(), text("0:0.0|0:0.0|0:0.0"));
        write(m_log->noticesPath(), "12345");
        const timespec times[2] = {{0, 0}, {1700000000, 25}};
        QCOMPARE(
            ::utimensat(AT_FDCWD, QFile::encodeName(m_log->noticesPath()).constData(), times, 0),
            0);
        QCOMPARE(m_log->signature(), text("0:0.0|5:1700000000.000000025|0:0.0"));
    }

    void randomBytesAreReadWithoutHarm()
    {
        QRandomGenerator random(99);
        for (int round = 0; round < 100; ++round) {
            for (const QString &path :
                 {m_log->startupPath(), m_log->noticesPath(), m_log->launcherPath()}) {
                QByteArray bytes(random.bounded(5000), Qt::Uninitialized);
                for (char &byte : bytes)
                    byte = static_cast<char>(random.bounded(256));
                write(path, bytes);
            }
            QVERIFY(m_log->read().lines().size() <= TorLog::lineLimit);
        }
    }
};

VELDMARK_BARE_TEST(TorLogTest)
#include "TorLogTest.moc"
