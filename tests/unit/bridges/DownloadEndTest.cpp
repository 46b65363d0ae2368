#include "DownloadBench.h"
#include "bridges/BundleTools.h"
#include "support/Interruption.h"
#include "support/TestProgram.h"

using namespace veldmark;
using namespace std::chrono_literals;

namespace {

InterruptibleApplication *application = nullptr;

} // namespace

// TransportDownloader: a cancelled download ends at any moment, together with the programs that it
// has started.
class DownloadEndTest : public QObject, DownloadBench {
    Q_OBJECT

    // Puts a script in the program's place. It runs the real program, but hangs together with a
    // child when its arguments contain `word`. Returns the file that then contains the process ids
    // of both.
    QString makeHang(const char *program, const char *word)
    {
        const QString name = QStringLiteral("usr/bin/") + QLatin1String(program);
        const QString pids = m_tree->path(QStringLiteral("hanging"));
        QFile::remove(m_tree->path(name));
        m_tree->program(name,
                        "#!/bin/sh\ncase \" $* \" in *' " + QByteArray(word)
                            + " '*)\n  sleep 600 &\n  echo $$ $! >" + pids.toUtf8() + ".new; mv "
                            + pids.toUtf8() + ".new " + pids.toUtf8()
                            + "\n  wait ;;\nesac\nexec /usr/bin/" + program + " \"$@\"\n");
        return pids;
    }

    static bool hasEnded(const QByteArray &process)
    {
        QFile stat(QStringLiteral("/proc/%1/stat").arg(QString::fromLatin1(process)));
        if (!stat.open(QIODevice::ReadOnly))
            return true;
        const QByteArray line = stat.readAll();
        // an orphan stays a zombie where no init reaps it
        return line.mid(line.lastIndexOf(')') + 2, 1) == "Z";
    }

private Q_SLOTS:
    void initTestCase() { makeKeys(); }
    void init() { prepare(); }
    void cleanup() { expectNothingLeft(); }

    void canBeCancelled()
    {
        putBundle();
        m_answers[archivePath] = [](QSslSocket *socket) {
            socket->write("HTTP/1.1 200 OK\r\nContent-Length: 1000000\r\n\r\nx");
        };
        const auto kept = begin();
        QTRY_COMPARE(m_service->requests.size(), 2);
        m_downloader->cancel();
        QTRY_VERIFY(kept->has_value());
        QCOMPARE((*kept)->error().description(), QStringLiteral("Cancelled."));
        QCOMPARE(mark(), QByteArray("former"));
        serve(archivePath, m_archive);
        QVERIFY(install());
    }

    void givesUpOnAProgramThatHangs_data()
    {
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<QByteArray>("word");
        QTest::addColumn<int>("minutes");
        QTest::addColumn<QString>("message");
        const QString signature = QStringLiteral(
            "The download's signature didn't verify, so it was discarded. ");
        QTest::newRow("import") << QByteArray("gpg") << QByteArray("--import") << 2
                                << signature
                + QStringLiteral("Couldn't load the Tor Browser signing key. "
                                 "gpg didn't end within 2 minutes.");
        QTest::newRow("verify") << QByteArray("gpg") << QByteArray("--verify") << 2
                                << signature + QStringLiteral("gpg didn't end within 2 minutes.");
        QTest::newRow("unpack")
            << QByteArray("tar") << QByteArray("-xzf") << 10
            << QStringLiteral("Couldn't unpack the download. tar didn't end within 10 minutes.");
    }

    void givesUpOnAProgramThatHangs()
    {
        QFETCH(QByteArray, program);
        QFETCH(QByteArray, word);
        QFETCH(int, minutes);
        QFETCH(QString, message);
        putBundle();
        const QString file = makeHang(program.constData(), word.constData());
        const auto kept = begin();
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(file), 30'000);
        const QByteArrayList processes
            = m_tree->content(QStringLiteral("hanging")).simplified().split(' ');
        m_clock->advance(std::chrono::minutes(minutes) - 1s);
        QCoreApplication::processEvents();
        QVERIFY(!kept->has_value() && !hasEnded(processes.at(0)) && !hasEnded(processes.at(1)));
        m_clock->advance(1s);
        QTRY_VERIFY(kept->has_value());
        QCOMPARE((*kept)->error().description(), message);
        QTRY_VERIFY(hasEnded(processes.at(0)) && hasEnded(processes.at(1))); // its child as well
        QCOMPARE(mark(), QByteArray("former"));
        QFile::remove(m_tree->path(QStringLiteral("usr/bin/") + QString::fromLatin1(program)));
        QFile::link(QStringLiteral("/usr/bin/") + QString::fromLatin1(program),
                    m_tree->path(QStringLiteral("usr/bin/") + QString::fromLatin1(program)));
        QVERIFY(install()); // no leftover blocks the next download
    }

    void cancellingEndsTheProgramThatRuns()
    {
        putBundle();
        const QString file = makeHang("tar", "-xzf");
        const auto kept = begin();
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(file), 30'000);
        const QByteArrayList processes
            = m_tree->content(QStringLiteral("hanging")).simplified().split(' ');
        m_downloader->cancel();
        QTRY_VERIFY(kept->has_value());
        QCOMPARE((*kept)->error().description(), QStringLiteral("Cancelled."));
        QTRY_VERIFY(hasEnded(processes.at(0)) && hasEnded(processes.at(1)));
        QCOMPARE(mark(), QByteArray("former"));
    }

    void nothingIsStartedOnceTheRunnerIsAboutToGo()
    {
        const auto tools = std::make_shared<BundleTools>(QStringLiteral("/usr/bin/true"), QString(),
                                                         m_runner.get(), *m_clock);
        auto first = BundleTools::unpack(tools, QStringLiteral("/archive"),
                                         QStringLiteral("/folder"));
        QVERIFY(QCoro::waitFor(std::move(first)));
        tools->forget();
        auto second = BundleTools::unpack(tools, QStringLiteral("/archive"),
                                          QStringLiteral("/folder"));
        const auto ended = QCoro::waitFor(std::move(second));
        QVERIFY(!ended);
        QCOMPARE(ended.error().description(),
                 QStringLiteral("Couldn't unpack the download. Cancelled."));
    }

    void mayBeDestroyedWhileAProgramRuns()
    {
        const QString file = makeHang("gpg", "--import");
        const auto kept = begin();
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(file), 30'000);
        const QByteArrayList processes
            = m_tree->content(QStringLiteral("hanging")).simplified().split(' ');
        m_downloader.reset();
        QTRY_VERIFY(kept->has_value());
        QCOMPARE((*kept)->error().description(), QStringLiteral("Cancelled."));
        QTRY_VERIFY(hasEnded(processes.at(0)) && hasEnded(processes.at(1)));
    }

    void mayBeDestroyedWhileItWorks()
    {
        m_answers[archivePath] = [](QSslSocket *) {};
        const auto kept = begin();
        QTRY_COMPARE(m_service->requests.size(), 2);
        m_downloader.reset();
        QTRY_VERIFY(kept->has_value());
        QCOMPARE((*kept)->error().description(), QStringLiteral("Cancelled."));
    }

    // Cancelled right after each of its waits: either the former or the new bundle is in place, and
    // no leftovers.
    void mayBeDestroyedAtEveryWait()
    {
        for (int wait = 1;; ++wait) {
            putBundle();
            makeDownloader(source());
            bool destroyed = false;
            application->interrupt(wait, InterruptibleApplication::Moment::after,
                                   [this, &destroyed] {
                                       destroyed = true;
                                       m_downloader.reset();
                                   });
            const auto kept = begin();
            QTRY_VERIFY_WITH_TIMEOUT(kept->has_value(), 30'000);
            application->leaveAlone();
            QTRY_COMPARE(temporaryFolders(), QStringList());
            QCOMPARE(mark(), kept->value() ? QByteArray("fourteen") : QByteArray("former"));
            if (!destroyed) {
                QVERIFY(kept->value());
                QVERIFY2(wait > 8, qPrintable(QStringLiteral("only %1 waits").arg(wait - 1)));
                break;
            }
        }
    }
};

static int runDownloadEndTest(int argc, char **argv)
{
    InterruptibleApplication app(argc, argv);
    application = &app;
    DownloadEndTest test;
    return QTest::qExec(&test, argc, argv);
}
static const veldmark::test::Registration registeredDownloadEndTest("DownloadEndTest",
                                                                    runDownloadEndTest);

#include "DownloadEndTest.moc"
