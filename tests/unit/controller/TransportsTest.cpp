#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;
using Outcome = TransportDownloader::Outcome;
using System = Workbench::System;

namespace {

const Outcome verified = InstalledBundle{u"14.0.4"_s, true};
const Outcome unverified = InstalledBundle{u"14.0.4"_s, false};

// A downloader with given messages, which ends when the test releases it.
struct Downloader {
    Outcome outcome = verified;
    QStringList lines;                    // its progress
    std::vector<bool> throughTor;         // the arguments of each call
    std::optional<ResumeOnce<bool>> gate; // none: it ends at once
    TransportDownloader::Progress lastProgress;

    void serve(Workbench &bench)
    {
        bench.installTransports = [this](bool tor, TransportDownloader::Progress progress) {
            return install(tor, std::move(progress));
        };
    }

    QCoro::Task<Outcome> install(bool tor, TransportDownloader::Progress progress)
    {
        throughTor.push_back(tor);
        lastProgress = progress;
        for (const QString &line : std::as_const(lines))
            progress(line);
        if (gate) {
            const ResumeOnce<bool> wait = *gate;
            co_await wait;
        }
        co_return outcome;
    }
};

QCoro::Task<void> opened(ResumeOnce<bool> gate)
{
    co_await gate;
}

bool result(const QCoro::Task<bool> &task)
{
    return task.isReady() && QCoro::waitFor(const_cast<QCoro::Task<bool> &>(task));
}

} // namespace

class TransportsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void aVerifiedBundleLeavesNothingToSay()
    {
        Workbench bench;
        Downloader downloader;
        downloader.serve(bench);
        TorController &c = bench.controller();
        const int searches = bench.searches;
        bench.transports.lyrebird = u"/new/lyrebird"_s;
        const auto task = c.downloadTransports();
        QVERIFY(Workbench::finished(task));
        QVERIFY(result(task));
        QCOMPARE(c.transportDownload(), std::optional<Text>());
        QCOMPARE(bench.searches, searches + 1);
        QCOMPARE(c.transports().lyrebird, std::optional(u"/new/lyrebird"_s));
        QVERIFY(c.canDownloadTransports());
    }

    void anUnverifiedOneSaysHowToVerify_data()
    {
        QTest::addColumn<System>("system");
        QTest::addColumn<QString>("hint"); // that installs tor
        QTest::addColumn<QString>("command");
        QTest::newRow("mac") << System::macos << u"brew install tor"_s << u"brew install gnupg"_s;
        QTest::newRow("debian") << System::linux << u"sudo apt install tor tor-geoipdb"_s
                                << u"sudo apt install gnupg"_s;
        QTest::newRow("fedora") << System::linux << u"sudo dnf install tor"_s
                                << u"sudo dnf install gnupg"_s;
        QTest::newRow("elsewhere")
            << System::linux << u"your package manager"_s << u"with your package manager"_s;
    }

    void anUnverifiedOneSaysHowToVerify()
    {
        QFETCH(System, system);
        QFETCH(QString, hint);
        QFETCH(QString, command);
        Workbench bench(system);
        bench.profile.torInstallHint = hint;
        Downloader downloader;
        downloader.outcome = unverified;
        downloader.serve(bench);
        const auto task = bench.controller().downloadTransports();
        QVERIFY(Workbench::finished(task));
        QVERIFY(result(task)); // it is installed anyway
        QCOMPARE(
            bench.controller().transportDownload().value(),
            u"Bridge programs 14.0.4 installed over HTTPS. Install GnuPG (%1) and download again to also verify the "
            "Tor Project's signature."_s.arg(command));
        QVERIFY(bench.controller().canDownloadTransports());
    }

    void aFailureIsTheLastWord()
    {
        Workbench bench;
        Downloader downloader;
        downloader.outcome = Failure(DownloadError::other(u"No route to host."_s));
        downloader.serve(bench);
        TorController &c = bench.controller();
        const int searches = bench.searches;
        const auto task = c.downloadTransports();
        QVERIFY(Workbench::finished(task));
        QVERIFY(!result(task));
        QCOMPARE(c.transportDownload().value(),
                 u"Couldn't download bridge programs: No route to host."_s);
        QCOMPARE(bench.searches, searches); // nothing new to find
        QVERIFY(c.canDownloadTransports());

        downloader.outcome = verified; // the next download clears the earlier message
        QVERIFY(Workbench::finished(c.downloadTransports()));
        QVERIFY(!c.transportDownload());
    }

    void tellsHowItGoes()
    {
        Workbench bench;
        Downloader downloader;
        downloader.gate.emplace();
        downloader.serve(bench);
        TorController &c = bench.controller();
        QStringList seen;
        QObject::connect(&c.transportDownload, &Field::changed, &c,
                         [&] { seen << c.transportDownload().value_or(u"(none)"_s).english(); });
        downloader.lines = {u"Checking latest version…"_s,
                            u"Downloading Tor 14.0.4 bridge programs… 1.0 of 2.0 MB (50%)"_s};
        const auto task = c.downloadTransports();
        QCOMPARE(seen, QStringList(u"Starting…"_s) + downloader.lines);
        QVERIFY(!c.canDownloadTransports());
        downloader.gate->complete(true);
        QVERIFY(Workbench::finished(task));
        QCOMPARE(seen.last(), u"(none)"_s);
    }

    void goesThroughTorExactlyWhileConnected()
    {
        Workbench bench;
        Downloader downloader;
        downloader.serve(bench);
        TorController &c = bench.controller();
        QVERIFY(Workbench::finished(c.downloadTransports()));
        QVERIFY(bench.connect());
        QVERIFY(Workbench::finished(c.downloadTransports()));
        bench.writeMarker("strict\n");
        bench.restart(); // a session that another run has left
        bench.controller().detectStaleState();
        QVERIFY(bench.controller().phase() == ConnectionPhase::stale);
        QVERIFY(Workbench::finished(bench.controller().downloadTransports()));
        QCOMPARE(downloader.throughTor, std::vector<bool>({false, true, false}));
    }

    void onlyOneAtATime()
    {
        Workbench bench;
        Downloader downloader;
        downloader.gate.emplace();
        downloader.serve(bench);
        const auto first = bench.controller().downloadTransports();
        const auto second = bench.controller().downloadTransports();
        QVERIFY(second.isReady() && !result(second));
        QCOMPARE(downloader.throughTor.size(), std::size_t(1));
        downloader.gate->complete(true);
        QVERIFY(Workbench::finished(first) && result(first));
    }

    void notWhileTheNetworkIsBeingChanged_data()
    {
        QTest::addColumn<QString>("verb");
        QTest::newRow("connecting") << u"connect"_s;
        QTest::newRow("disconnecting") << u"disconnect"_s;
    }

    void notWhileTheNetworkIsBeingChanged()
    {
        QFETCH(QString, verb);
        Workbench bench;
        Downloader downloader;
        downloader.serve(bench);
        TorController &c = bench.controller();
        if (verb == u"disconnect")
            QVERIFY(bench.connect());
        bench.hold(verb);
        if (verb == u"connect")
            c.connect();
        else
            c.disconnect();
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        QVERIFY(!c.canDownloadTransports());
        const auto refused = c.downloadTransports();
        QVERIFY(refused.isReady() && !result(refused));
        QVERIFY(!c.transportDownload());
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(until([&] { return c.canDownloadTransports(); }));
        QVERIFY(Workbench::finished(c.downloadTransports()));
        QCOMPARE(downloader.throughTor.size(), std::size_t(1));
    }

    void withoutADownloaderNothingHappens()
    {
        Workbench bench;
        bench.withoutDownloader = true;
        bench.restart();
        const auto task = bench.controller().downloadTransports();
        QVERIFY(task.isReady() && !result(task));
        QVERIFY(!bench.controller().transportDownload());
    }

    void theControllerMayGoMeanwhile()
    {
        Workbench bench;
        Downloader downloader;
        downloader.gate.emplace();
        downloader.serve(bench);
        const auto task = bench.controller().downloadTransports();
        bench.end();
        downloader.lastProgress(u"Installing…"_s); // the receiver of the progress has been
                                                   // destroyed
        downloader.gate->complete(true);
        QVERIFY(Workbench::finished(task));
        QVERIFY(!result(task));
    }

    void aDirectDownloadBeginsAgainThroughTorAfterAConnect()
    {
        Workbench bench;
        Downloader downloader;
        downloader.gate.emplace();
        downloader.serve(bench);
        int cancels = 0;
        bench.cancelTransports = [&] {
            ++cancels;
            downloader.outcome = Failure(DownloadError::other(u"Cancelled."_s));
            const ResumeOnce<bool> gate = *downloader.gate;
            downloader.gate.reset();
            gate.complete(true);
        };
        TorController &c = bench.controller();
        const auto task = c.downloadTransports();
        QCOMPARE(downloader.throughTor, std::vector<bool>({false}));
        bench.hold(u"connect"_s);
        const auto connecting = c.connect();
        QCOMPARE(cancels, 1);
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        settle();
        // no download continues while Tor starts
        QCOMPARE(downloader.throughTor.size(), std::size_t(1));
        QCOMPARE(c.transportDownload().value(),
                 u"The download begins again when Tor is connected…"_s);
        QVERIFY(!c.canDownloadTransports());
        downloader.outcome = verified;
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(connecting) && c.phase() == ConnectionPhase::connected);
        QVERIFY(Workbench::finished(task) && result(task));
        QCOMPARE(downloader.throughTor, std::vector<bool>({false, true}));
        QVERIFY(!c.transportDownload());
        bench.disconnect();
        QCOMPARE(cancels, 1);
    }

    void aDownloadThroughTorIsNotCancelledByAReconnect()
    {
        Workbench bench;
        Downloader downloader;
        downloader.gate.emplace();
        downloader.serve(bench);
        int cancels = 0;
        bench.cancelTransports = [&] { ++cancels; };
        QVERIFY(bench.connect());
        const auto task = bench.controller().downloadTransports();
        bench.disconnect();
        QVERIFY(bench.connect());
        QCOMPARE(cancels, 0);
        downloader.gate->complete(true);
        QVERIFY(Workbench::finished(task));
    }

    void theControllerMayGoWhileTheDownloadWaitsForTor()
    {
        Workbench bench;
        Downloader downloader;
        downloader.gate.emplace();
        downloader.serve(bench);
        bench.cancelTransports = [&] {
            downloader.outcome = Failure(DownloadError::other(u"Cancelled."_s));
            downloader.gate->complete(true);
        };
        const auto task = bench.controller().downloadTransports();
        bench.hold(u"connect"_s);
        const auto connecting = bench.controller().connect();
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        settle();
        bench.end();
        QVERIFY(Workbench::finished(task) && !result(task));
        QCOMPARE(downloader.throughTor.size(), std::size_t(1));
    }

    void anEarlierSearchNeverReplacesALaterOne()
    {
        Workbench bench;
        TorController &c = bench.controller();
        const ResumeOnce<bool> gate;
        bench.beforeSearchAnswer = [gate] { return opened(gate); };
        bench.transports.lyrebird = u"/old/lyrebird"_s;
        const auto first = c.locateTransports();
        bench.beforeSearchAnswer = nullptr;
        bench.transports.lyrebird = u"/new/lyrebird"_s;
        QVERIFY(Workbench::finished(c.locateTransports()));
        QCOMPARE(c.transports().lyrebird, std::optional(u"/new/lyrebird"_s));
        gate.complete(true);
        QVERIFY(Workbench::finished(first));
        QCOMPARE(c.transports().lyrebird, std::optional(u"/new/lyrebird"_s));
    }
};

VELDMARK_TEST(TransportsTest)
#include "TransportsTest.moc"
