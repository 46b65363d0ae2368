#include "bridges/TransportDownloader.h"

#include "../checks/CheckService.h"
#include "../checks/SocksProxy.h"
#include "BundleBench.h"
#include "bridges/PluggableTransports.h"
#include "support/Interruption.h"
#include "support/ManualClock.h"
#include "system/ChildProcessRunner.h"

#include <memory>

using namespace veldmark;
using namespace std::chrono_literals;
using Kind = DownloadError::Kind;
using Outcome = TransportDownloader::Outcome;

namespace {

InterruptibleApplication *application = nullptr;

const QByteArray indexPath = "/index.json";
const QByteArray keyPath = "/key";
const QByteArray archivePath = "/torbrowser/14.0.4/tor-expert-bundle-linux-x86_64-14.0.4.tar.gz";

QCoro::Task<void> keep(QCoro::Task<Outcome> task, std::shared_ptr<std::optional<Outcome>> kept)
{
    Outcome outcome = co_await task;
    *kept = outcome;
}

QStringList temporaryFolders()
{
    return QDir(QStringLiteral("/tmp")).entryList({QStringLiteral("vmk-*")}, QDir::Dirs);
}

// Command lines of processes that still work in one of our temporary folders.
QStringList agents()
{
    QStringList found;
    for (const QString &number : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        QFile file(QStringLiteral("/proc/%1/cmdline").arg(number));
        if (number.front().isDigit() && file.open(QIODevice::ReadOnly)) {
            const QByteArray line = file.readAll();
            if (line.contains("/tmp/vmk-"))
                found << QString::fromUtf8(line).replace(QChar(u'\0'), u' ');
        }
    }
    return found;
}

} // namespace

class TransportDownloaderTest : public QObject {
    Q_OBJECT

    std::unique_ptr<TestCertificates> m_certificates;
    std::unique_ptr<SigningKey> m_key;
    QSslConfiguration m_tls;
    QByteArray m_archive;
    QByteArray m_signature;

    // Made anew for each test; the downloader goes first.
    std::unique_ptr<ProgramTree> m_tree;
    std::unique_ptr<PlatformProfile> m_profile;
    std::unique_ptr<ManualClock> m_clock;
    std::unique_ptr<ChildProcessRunner> m_runner;
    std::unique_ptr<CheckService> m_service;
    std::unique_ptr<TransportDownloader> m_downloader;
    QMap<QByteArray, CheckService::Respond> m_answers; // by path
    QStringList m_progress;
    QStringList m_formerTemporaries;

    void serve(const QByteArray &path, const QByteArray &body, const QByteArray &status = "200 OK")
    {
        m_answers[path] = CheckService::answer(status, body);
    }

    void serveIndex(const QByteArray &version) { serve(indexPath, "{\"version\": \"" + version + "\"}"); }

    void serveArchive(const QByteArray &archive)
    {
        serve(archivePath, archive);
        serve(archivePath + ".asc", m_key->sign(archive));
    }

    DownloadSource source(const QString &host = QStringLiteral("localhost"), quint16 socksPort = 1)
    {
        const QString server = QStringLiteral("https://%1:%2").arg(host).arg(m_service->port());
        return {QUrl(server + QString::fromLatin1(indexPath)), QUrl(server + QStringLiteral("/torbrowser/")),
                QUrl(server + QString::fromLatin1(keyPath)), m_key->fingerprint(), socksPort, m_certificates->client()};
    }

    void makeDownloader(const DownloadSource &from)
    {
        m_downloader = std::make_unique<TransportDownloader>(*m_profile, *m_runner, *m_clock, from);
    }

    std::shared_ptr<std::optional<Outcome>> begin(bool throughTor = false)
    {
        m_progress.clear();
        const auto kept = std::make_shared<std::optional<Outcome>>();
        const TransportDownloader::Progress progress = [this](const QString &text) { m_progress << text; };
        keep(m_downloader->install(throughTor, progress), kept);
        return kept;
    }

    Outcome install(bool throughTor = false)
    {
        const auto kept = begin(throughTor);
        if (!QTest::qWaitFor([kept] { return kept->has_value(); }, 30'000))
            return Failure(DownloadError::other(QStringLiteral("It never ended.")));
        return **kept;
    }

    QString failure(bool throughTor = false)
    {
        const Outcome outcome = install(throughTor);
        return outcome ? QStringLiteral("It was installed.") : outcome.error().description();
    }

    QByteArray installed(const char *name) const
    {
        return m_tree->content(m_profile->bundleDirectory + u'/' + QLatin1String(name)).trimmed();
    }

    QByteArray mark() const
    {
        const QString program = m_profile->bundleDirectory + QStringLiteral("/tor/pluggable_transports/lyrebird");
        return QFileInfo::exists(program) ? output(program, {}).trimmed() : QByteArray();
    }

    QByteArrayList paths() const
    {
        QByteArrayList all;
        for (const QByteArray &head : m_service->requests)
            all << head.split(' ').value(1);
        return all;
    }

    void putBundle()
    {
        m_tree->program(m_profile->bundleDirectory + QStringLiteral("/tor/pluggable_transports/lyrebird"),
                        "#!/bin/sh\necho former\n");
        m_tree->file(m_profile->bundleDirectory + QStringLiteral("/VERSION"), "13.5\n");
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_certificates = std::make_unique<TestCertificates>();
        m_tls = m_certificates->server(QStringLiteral("DNS:localhost,DNS:server.invalid"));
        m_key = std::make_unique<SigningKey>(QStringLiteral("Right"));
        m_archive = bundleArchive("fourteen", 1'000'000);
        m_signature = m_key->sign(m_archive);
    }

    void init()
    {
        m_formerTemporaries = temporaryFolders();
        m_tree = std::make_unique<ProgramTree>();
        for (const char *name : {"usr/bin/tar", "usr/bin/gpg", "usr/bin/gpgconf"}) {
            QDir().mkpath(m_tree->path(QStringLiteral("usr/bin")));
            QFile::link(u'/' + QString::fromLatin1(name), m_tree->path(QString::fromLatin1(name)));
        }
        Places places = Places::below(m_tree->root());
        places.machine = QStringLiteral("x86_64");
        m_profile = std::make_unique<PlatformProfile>(PlatformProfile::linux(places));
        m_clock = std::make_unique<ManualClock>();
        m_runner = std::make_unique<ChildProcessRunner>();
        m_service = std::make_unique<CheckService>(m_tls);
        m_answers.clear();
        m_service->respond = [this](QSslSocket *socket) {
            const QByteArray path = m_service->requests.last().split(' ').value(1);
            const auto answer = m_answers.value(path, CheckService::answer("404 Not Found", "no such page"));
            answer(socket);
        };
        serveIndex("14.0.4");
        serve(keyPath, m_key->publicKey());
        serve(archivePath, m_archive);
        serve(archivePath + ".asc", m_signature);
        makeDownloader(source());
    }

    void cleanup()
    {
        m_downloader.reset();
        m_clock.reset();
        m_service.reset();
        m_runner.reset();
        QCOMPARE(temporaryFolders(), m_formerTemporaries);
        QCOMPARE(agents(), QStringList());
    }

    void theRealSourceIsTheTorProject()
    {
        const DownloadSource real = DownloadSource::torProject();
        QCOMPARE(real.fingerprint, QStringLiteral("EF6E286DDA85EA2A4BA7DE684E2C6E8793298290"));
        QCOMPARE(real.versionURL.path(), QStringLiteral("/torbrowser/update_3/release/downloads.json"));
        QCOMPARE(real.keyURL.path(),
                 QStringLiteral("/vks/v1/by-fingerprint/EF6E286DDA85EA2A4BA7DE684E2C6E8793298290"));
        const QUrl archive = real.archiveURL(QStringLiteral("14.0.4"), QStringLiteral("a.tar.gz"));
        QCOMPARE(archive.path(), QStringLiteral("/torbrowser/14.0.4/a.tar.gz"));
        for (const QUrl &url : {real.versionURL, real.keyURL, archive})
            QVERIFY(url.isValid() && url.scheme() == u"https" && !url.host().isEmpty());
        QCOMPARE(real.socksPort, quint16(9050));
    }

    void macsAskForTheirOwnArchive()
    {
        *m_profile = PlatformProfile::macos(Places::below(m_tree->root()));
        for (const char *name : {"gpg", "gpgconf"}) {
            QDir().mkpath(m_tree->path(QStringLiteral("opt/homebrew/bin")));
            QFile::link(QStringLiteral("/usr/bin/") + QLatin1String(name),
                        m_tree->path(QStringLiteral("opt/homebrew/bin/") + QLatin1String(name)));
        }
        const QByteArray path = "/torbrowser/14.0.4/tor-expert-bundle-macos-aarch64-14.0.4.tar.gz";
        serve(path, m_archive);
        serve(path + ".asc", m_signature);
        makeDownloader(source());
        const Outcome outcome = install();
        QVERIFY2(outcome, qPrintable(outcome ? QString() : outcome.error().description()));
        QVERIFY(m_profile->bundleDirectory.endsWith(QStringLiteral("Library/Application Support/Veldmark/TorExpertBundle")));
        QCOMPARE(mark(), QByteArray("fourteen"));
        QCOMPARE(installed("VERIFIED"), QByteArray("signature"));
    }

    void installsWhatTheExpectedKeyHasSigned()
    {
        putBundle();
        const Outcome outcome = install();
        QVERIFY2(outcome, qPrintable(outcome ? QString() : outcome.error().description()));
        QCOMPARE(outcome->version, QStringLiteral("14.0.4"));
        QVERIFY(outcome->isVerified);
        QCOMPARE(installed("VERSION"), QByteArray("14.0.4"));
        QCOMPARE(installed("VERIFIED"), QByteArray("signature"));
        QCOMPARE(TransportDownloader::installedVersion(*m_profile), std::optional(QStringLiteral("14.0.4")));
        QCOMPARE(TransportDownloader::installedVerification(*m_profile), std::optional(QStringLiteral("signature")));
        QCOMPARE(mark(), QByteArray("fourteen"));
        QCOMPARE(paths(), QByteArrayList({indexPath, archivePath, archivePath + ".asc", keyPath}));

        const PluggableTransports found = PluggableTransports::locate(*m_profile, outcome->version);
        QCOMPARE(found.source, QStringLiteral("Tor Expert Bundle 14.0.4"));
        QVERIFY(found.lyrebird && found.lyrebird->startsWith(m_profile->bundleDirectory));
    }

    void tellsHowItGoes()
    {
        QVERIFY(install());
        const QString large = QStringLiteral("Downloading Tor 14.0.4 bridge programs…");
        QCOMPARE(m_progress.first(), QStringLiteral("Checking latest version…"));
        QCOMPARE(m_progress.at(1), large);
        QVERIFY2(m_progress.contains(large + QStringLiteral(" 1.0 of 1.0 MB (100%)")), qPrintable(m_progress.join(u'\n')));
        QVERIFY(m_progress.size() <= 5 + 101);
        m_progress.removeIf([&large](const QString &line) { return line.startsWith(large); });
        QCOMPARE(m_progress, QStringList({QStringLiteral("Checking latest version…"), QStringLiteral("Verifying signature…"),
                                          QStringLiteral("Installing…")}));
    }

    void withoutGnuPGOnlyHTTPSProtects()
    {
        QFile::remove(m_tree->path(QStringLiteral("usr/bin/gpg")));
        QVERIFY(!TransportDownloader::gpgPath(*m_profile));
        const Outcome outcome = install();
        QVERIFY(outcome);
        QVERIFY(!outcome->isVerified);
        QCOMPARE(installed("VERIFIED"), QByteArray("https"));
        QCOMPARE(paths(), QByteArrayList({indexPath, archivePath}));
    }

    void takesTheFirstGnuPG()
    {
        const QString second = m_tree->program(QStringLiteral("usr/local/bin/gpg"));
        QCOMPARE(TransportDownloader::gpgPath(*m_profile), std::optional(m_tree->path(QStringLiteral("usr/bin/gpg"))));
        QFile::remove(m_tree->path(QStringLiteral("usr/bin/gpg")));
        QCOMPARE(TransportDownloader::gpgPath(*m_profile), std::optional(second));
    }

    void refusesWhatIsNotSignedByTheExpectedKey_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QByteArray>("signature");
        const SigningKey other(QStringLiteral("Other"));
        const QByteArray right = m_key->publicKey();
        QTest::newRow("another key, good signature") << other.publicKey() << other.sign(m_archive);
        QTest::newRow("both keys, signature of the other") << right + other.publicKey() << other.sign(m_archive);
        QTest::newRow("signature of an unknown key") << right << other.sign(m_archive);
        QTest::newRow("signature of something else") << right << m_key->sign("something else");
        QTest::newRow("signed text instead of a signature") << right << m_key->sign("text", QStringLiteral("--sign"));
        QTest::newRow("clear-signed text") << right << m_key->sign("text", QStringLiteral("--clearsign"));
        QTest::newRow("no signature") << right << QByteArray("nothing\n");
        QTest::newRow("an empty file") << right << QByteArray();
        QTest::newRow("status lines") << right
                                      << "[GNUPG:] VALIDSIG " + m_key->fingerprint().toLatin1() + '\n';
    }

    void refusesWhatIsNotSignedByTheExpectedKey()
    {
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, signature);
        putBundle();
        serve(keyPath, key);
        serve(archivePath + ".asc", signature);
        const Outcome outcome = install();
        QVERIFY(!outcome);
        QCOMPARE(outcome.error().kind(), Kind::badSignature);
        const QString prefix = QStringLiteral("The download's signature didn't verify, so it was discarded. ");
        QVERIFY2(outcome.error().description().startsWith(prefix), qPrintable(outcome.error().description()));
        QVERIFY(!outcome.error().description().contains(u'\n'));
        QCOMPARE(mark(), QByteArray("former"));
        QCOMPARE(installed("VERSION"), QByteArray("13.5"));
    }

    void refusesAKeyThatItsOwnerHasRevoked()
    {
        const SigningKey revoked(QStringLiteral("Revoked"));
        DownloadSource from = source();
        from.fingerprint = revoked.fingerprint();
        makeDownloader(from);
        serve(archivePath + ".asc", revoked.sign(m_archive));
        serve(keyPath, revoked.publicKey());
        QVERIFY(install()); // it does verify as long as it is not revoked
        revoked.revoke();
        serve(keyPath, revoked.publicKey());
        const Outcome outcome = install();
        QVERIFY(!outcome);
        QCOMPARE(outcome.error().kind(), Kind::badSignature);
    }

    void saysThatTheKeyCannotBeLoaded()
    {
        serve(keyPath, "no key\n");
        const QString text = failure();
        QVERIFY2(text.startsWith(QStringLiteral("The download's signature didn't verify, so it was discarded. "
                                                "Couldn't load the Tor Browser signing key. gpg: ")), qPrintable(text));
        QVERIFY(!QFileInfo::exists(m_profile->bundleDirectory));
    }

    void namesTheItemAndTheStatus_data()
    {
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QByteArray>("status");
        QTest::addColumn<QString>("message");
        QTest::newRow("archive") << archivePath << QByteArray("404 Not Found") << "Download of the bridge programs failed (HTTP 404).";
        QTest::newRow("archive busy") << archivePath << QByteArray("503 Busy") << "Download of the bridge programs failed (HTTP 503).";
        QTest::newRow("index") << indexPath << QByteArray("503 Busy") << "Download of the version index failed (HTTP 503).";
        QTest::newRow("signature") << archivePath + ".asc" << QByteArray("404 Not Found") << "Download of signature failed (HTTP 404).";
        QTest::newRow("key") << keyPath << QByteArray("404 Not Found") << "Download of signing key failed (HTTP 404).";
        QTest::newRow("a part") << archivePath << QByteArray("206 Partial") << "Download of the bridge programs failed (HTTP 206).";
        QTest::newRow("nothing to send") << archivePath << QByteArray("204 Empty") << "Download of the bridge programs failed (HTTP 204).";
    }

    void namesTheItemAndTheStatus()
    {
        QFETCH(QByteArray, path);
        QFETCH(QByteArray, status);
        QFETCH(QString, message);
        putBundle();
        serve(path, status.startsWith("204") ? QByteArray() : QByteArray("a page\n"), status);
        QCOMPARE(failure(), message);
        QCOMPARE(mark(), QByteArray("former"));
    }

    void refusesAnIndexWithoutAVersion()
    {
        serveIndex("14.0 beta");
        QCOMPARE(failure(), QStringLiteral("Couldn't read the latest Tor version from torproject.org."));
        QCOMPARE(paths(), QByteArrayList({indexPath}));
        serve(indexPath, "<html>");
        QCOMPARE(failure(), QStringLiteral("Couldn't read the latest Tor version from torproject.org."));
        serveIndex("14.0a1");
        QCOMPARE(failure(), QStringLiteral("Download of the bridge programs failed (HTTP 404)."));
    }

    void followsARedirectButNeverToPlainHTTP()
    {
        QTcpServer plain;
        QVERIFY(plain.listen(QHostAddress::LocalHost));
        const auto redirect = [this](const QString &target) {
            m_answers[archivePath] = [target](QSslSocket *socket) {
                socket->write("HTTP/1.1 302 Found\r\nLocation: " + target.toLatin1() + "\r\nContent-Length: 0\r\n\r\n");
            };
        };
        serve("/moved", m_archive);
        redirect(QStringLiteral("https://localhost:%1/moved").arg(m_service->port()));
        QVERIFY(install()); // a redirect works as such
        redirect(QStringLiteral("http://localhost:%1/moved").arg(plain.serverPort()));
        QCOMPARE(failure(), QStringLiteral("Download of the bridge programs failed (HTTP 302)."));
        QVERIFY(!plain.hasPendingConnections());
        redirect(QStringLiteral("https://localhost:%1%2").arg(m_service->port()).arg(QString::fromLatin1(archivePath)));
        QCOMPARE(failure(), QStringLiteral("Download of the bridge programs failed (HTTP 302).")); // in a circle
        redirect(QStringLiteral("file:///etc/passwd"));
        QCOMPARE(failure(), QStringLiteral("Download of the bridge programs failed (HTTP 302)."));
    }

    void refusesACertificateThatNobodyVouchesFor()
    {
        DownloadSource from = source();
        from.tls = QSslConfiguration::defaultConfiguration();
        makeDownloader(from);
        const QString text = failure();
        QVERIFY2(text.contains(QStringLiteral("certificate")), qPrintable(text));
        QVERIFY(m_service->requests.isEmpty());
    }

    void givesUpOnAServerThatFallsSilent()
    {
        putBundle();
        m_answers[archivePath] = [this](QSslSocket *socket) {
            socket->write("HTTP/1.1 200 OK\r\nContent-Length: 1000000\r\n\r\n" + m_archive.first(300'000));
        };
        const auto kept = begin();
        QTRY_VERIFY_WITH_TIMEOUT(m_progress.last().contains(QStringLiteral("0.3 of 1.0 MB (30%)")), 10'000);
        m_clock->advance(59s);
        QVERIFY(!kept->has_value());
        m_clock->advance(1s);
        QTRY_VERIFY(kept->has_value());
        QCOMPARE((*kept)->error().description(), QStringLiteral("The request timed out."));
        QCOMPARE(mark(), QByteArray("former"));
    }

    void givesUpOnAServerThatNeverEnds()
    {
        QSslSocket *client = nullptr;
        m_answers[archivePath] = [&client](QSslSocket *socket) {
            client = socket;
            socket->write("HTTP/1.1 200 OK\r\nContent-Length: 1000000\r\n\r\n");
        };
        const auto kept = begin();
        QTRY_VERIFY(client);
        for (int second = 0; second < 900; second += 50) {
            const qsizetype before = m_progress.size();
            client->write(QByteArray(10'000, 'x'));
            QTRY_VERIFY(m_progress.size() > before);
            QVERIFY(!kept->has_value());
            m_clock->advance(50s);
        }
        QTRY_VERIFY(kept->has_value());
        QCOMPARE((*kept)->error().description(), QStringLiteral("The request timed out."));
    }

    void noticesThatTheEndIsMissing()
    {
        m_answers[archivePath] = [this](QSslSocket *socket) {
            socket->write("HTTP/1.1 200 OK\r\nContent-Length: 1000000\r\n\r\n" + m_archive.first(500'000));
            socket->disconnectFromHost();
        };
        const Outcome outcome = install();
        QVERIFY(!outcome);
        QCOMPARE(outcome.error().kind(), Kind::other);
        QVERIFY(!QFileInfo::exists(m_profile->bundleDirectory));
    }

    void takesNoMoreThanAThingCanBe()
    {
        m_answers[archivePath] = [](QSslSocket *socket) {
            socket->write("HTTP/1.1 200 OK\r\nContent-Length: 99999999999\r\n\r\nx");
        };
        QCOMPARE(failure(), QStringLiteral("The server sent more than the bridge programs can be."));
        serve(archivePath, m_archive);
        m_answers[archivePath + ".asc"] = [](QSslSocket *socket) { // without saying how much it will be
            socket->write("HTTP/1.1 200 OK\r\n\r\n" + QByteArray(400'000, 'x'));
        };
        QCOMPARE(failure(), QStringLiteral("The server sent more than signature can be."));
    }

    void refusesArchivesThatReachElsewhere_data()
    {
        QTest::addColumn<QByteArray>("archive");
        const ProgramTree tree;
        tree.file(QStringLiteral("b/good"), "good");
        const auto made = [&tree](const QStringList &options) {
            output(QStringLiteral("/usr/bin/tar"),
                   QStringList{QStringLiteral("-P"), QStringLiteral("-C"), tree.path(QStringLiteral("b")),
                               QStringLiteral("-czf"), tree.path(QStringLiteral("a.tar.gz"))}
                       + options + QStringList{QStringLiteral("good")});
            return tree.content(QStringLiteral("a.tar.gz"));
        };
        const auto renamed = [&made](const char *name) {
            return made({QStringLiteral("--transform=s,good,%1,").arg(QLatin1String(name))});
        };
        QTest::newRow("upwards") << renamed("../../../../escaped");
        QTest::newRow("upwards further down") << renamed("a/../../../../../escaped");
        QTest::newRow("absolute") << renamed("/tmp/veldmark-test-escaped");
        QFile::link(QStringLiteral("/etc/passwd"), tree.path(QStringLiteral("b/link")));
        QTest::newRow("link") << made({QStringLiteral("link")});
        QFile::link(QStringLiteral("../../.."), tree.path(QStringLiteral("b/up")));
        QTest::newRow("link upwards") << made({QStringLiteral("up")});
        ::link(QFile::encodeName(tree.path(QStringLiteral("b/good"))).constData(),
               QFile::encodeName(tree.path(QStringLiteral("b/hard"))).constData());
        QTest::newRow("hard link") << made({QStringLiteral("hard")});
        QTest::newRow("device") << made({QStringLiteral("/dev/null")});
        QTest::newRow("cut short") << bundleArchive("x", 300'000).first(200'000);
        QTest::newRow("no archive") << QByteArray("no archive");
        QTest::newRow("empty") << QByteArray();
    }

    void refusesArchivesThatReachElsewhere()
    {
        QFETCH(QByteArray, archive);
        putBundle();
        serveArchive(archive); // signed: the check comes on top
        const Outcome outcome = install();
        QVERIFY(!outcome);
        QVERIFY2(outcome.error().description().startsWith(QStringLiteral("Couldn't unpack the download. ")),
                 qPrintable(outcome.error().description()));
        QCOMPARE(outcome.error().kind(), Kind::extractFailed);
        QCOMPARE(mark(), QByteArray("former"));
        QVERIFY(!QFileInfo::exists(QStringLiteral("/tmp/veldmark-test-escaped")));
        const QFileInfo bundle(m_profile->bundleDirectory);
        QCOMPARE(QDir(bundle.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot),
                 QStringList({QStringLiteral(".TorExpertBundle.lock"), QStringLiteral("TorExpertBundle")}));
    }

    void throughTorEverythingGoesThroughTheProxyAlone()
    {
        SocksProxy proxy(m_service->port());
        makeDownloader(source(QStringLiteral("server.invalid"), proxy.port()));
        const Outcome outcome = install(true);
        QVERIFY2(outcome, qPrintable(outcome ? QString() : outcome.error().description()));
        QVERIFY(proxy.connections > 0);
        for (const int type : proxy.addressTypes)
            QCOMPARE(type, 3); // by name: this computer looks nothing up
        QCOMPARE(m_service->connections, proxy.connections);
    }

    void directlyNothingGoesThroughTheProxy()
    {
        SocksProxy proxy(m_service->port());
        makeDownloader(source(QStringLiteral("localhost"), proxy.port()));
        QVERIFY(install(false));
        QCOMPARE(proxy.connections, 0);
    }

    void withoutTorsProxyNothingGoesDirectly()
    {
        QTcpServer unused;
        unused.listen(QHostAddress::LocalHost);
        const quint16 port = unused.serverPort();
        unused.close();
        makeDownloader(source(QStringLiteral("server.invalid"), port));
        QVERIFY(!failure(true).isEmpty());
        QCOMPARE(m_service->connections, 0);
    }

    void onlyOneAtATime()
    {
        const auto first = begin();
        QCOMPARE(failure(), QStringLiteral("Another download is under way."));
        QTRY_VERIFY_WITH_TIMEOUT(first->has_value(), 30'000);
        QVERIFY(first->value());
        QVERIFY(install());
    }

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

    // Puts a script in the program's place: it runs the real one, but hangs, with a child of its own, when its words
    // hold `word`. Gives the file in which the process ids of the two then stand.
    QString makeHang(const char *program, const char *word)
    {
        const QString name = QStringLiteral("usr/bin/") + QLatin1String(program);
        const QString pids = m_tree->path(QStringLiteral("hanging"));
        QFile::remove(m_tree->path(name));
        m_tree->program(name, "#!/bin/sh\ncase \" $* \" in *' " + QByteArray(word) + " '*)\n  sleep 600 &\n  echo $$ $! >"
                                  + pids.toUtf8() + ".new; mv " + pids.toUtf8() + ".new " + pids.toUtf8()
                                  + "\n  wait ;;\nesac\nexec /usr/bin/" + program + " \"$@\"\n");
        return pids;
    }

    static bool hasEnded(const QByteArray &process)
    {
        QFile stat(QStringLiteral("/proc/%1/stat").arg(QString::fromLatin1(process)));
        if (!stat.open(QIODevice::ReadOnly))
            return true;
        const QByteArray line = stat.readAll();
        return line.mid(line.lastIndexOf(')') + 2, 1) == "Z"; // nobody waits for orphans where there is no init
    }

    void givesUpOnAProgramThatHangs_data()
    {
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<QByteArray>("word");
        QTest::addColumn<int>("minutes");
        QTest::addColumn<QString>("message");
        const QString signature = QStringLiteral("The download's signature didn't verify, so it was discarded. ");
        QTest::newRow("import") << QByteArray("gpg") << QByteArray("--import") << 2
                                << signature + QStringLiteral("Couldn't load the Tor Browser signing key. "
                                                              "gpg didn't end within 2 minutes.");
        QTest::newRow("verify") << QByteArray("gpg") << QByteArray("--verify") << 2
                                << signature + QStringLiteral("gpg didn't end within 2 minutes.");
        QTest::newRow("unpack") << QByteArray("tar") << QByteArray("-xzf") << 10
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
        const QByteArrayList processes = m_tree->content(QStringLiteral("hanging")).simplified().split(' ');
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
        QVERIFY(install()); // nothing is left in the way
    }

    void cancellingEndsTheProgramThatRuns()
    {
        putBundle();
        const QString file = makeHang("tar", "-xzf");
        const auto kept = begin();
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(file), 30'000);
        const QByteArrayList processes = m_tree->content(QStringLiteral("hanging")).simplified().split(' ');
        m_downloader->cancel();
        QTRY_VERIFY(kept->has_value());
        QCOMPARE((*kept)->error().description(), QStringLiteral("Cancelled."));
        QTRY_VERIFY(hasEnded(processes.at(0)) && hasEnded(processes.at(1)));
        QCOMPARE(mark(), QByteArray("former"));
    }

    void mayBeDestroyedWhileAProgramRuns()
    {
        const QString file = makeHang("gpg", "--import");
        const auto kept = begin();
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(file), 30'000);
        const QByteArrayList processes = m_tree->content(QStringLiteral("hanging")).simplified().split(' ');
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

    // Right after it was resumed, for each of its waits: the former bundle stands there or the new one, and nothing is left.
    void mayBeDestroyedAtEveryWait()
    {
        for (int wait = 1;; ++wait) {
            putBundle();
            makeDownloader(source());
            bool destroyed = false;
            application->interrupt(wait, InterruptibleApplication::Moment::after, [this, &destroyed] {
                destroyed = true;
                m_downloader.reset();
            });
            const auto kept = begin();
            QTRY_VERIFY_WITH_TIMEOUT(kept->has_value(), 30'000);
            application->leaveAlone();
            QTRY_COMPARE(temporaryFolders(), m_formerTemporaries);
            QCOMPARE(mark(), kept->value() ? QByteArray("fourteen") : QByteArray("former"));
            if (!destroyed) {
                QVERIFY(kept->value());
                QVERIFY2(wait > 8, qPrintable(QStringLiteral("only %1 waits").arg(wait - 1)));
                break;
            }
        }
    }

    void clearsUpAfterOneThatWasKilled()
    {
        const QString temporary = QStringLiteral("/tmp/vmk-00000000-0000-4000-8000-00000000000a");
        QVERIFY(QDir().mkpath(temporary + QStringLiteral("/g")));
        const QFileInfo bundle(m_profile->bundleDirectory);
        m_tree->file(bundle.path() + QStringLiteral("/.TorExpertBundle.lock"), temporary.toUtf8() + '\n');
        m_tree->file(bundle.path() + QStringLiteral("/.TorExpertBundle.old/VERSION"), "13.5");
        makeDownloader(source());
        QCOMPARE(installed("VERSION"), QByteArray("13.5")); // back in its place before anything is downloaded
        QVERIFY(install());
        QVERIFY(!QFileInfo::exists(temporary));
    }

    void removesNoFolderThatCannotBeItsOwn()
    {
        const QString other = m_tree->file(QStringLiteral("other/file"), "mine");
        const QFileInfo bundle(m_profile->bundleDirectory);
        m_tree->file(bundle.path() + QStringLiteral("/.TorExpertBundle.lock"),
                     QFile::encodeName(QFileInfo(other).path()) + '\n');
        QVERIFY(install());
        QVERIFY(QFileInfo::exists(other));
    }
};

int main(int argc, char **argv)
{
    InterruptibleApplication app(argc, argv);
    application = &app;
    TransportDownloaderTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "TransportDownloaderTest.moc"
