#include "DownloadBench.h"
#include "support/TestProgram.h"

#include <csignal>

#include <sys/resource.h>

using namespace veldmark;
using namespace std::chrono_literals;
using Kind = DownloadError::Kind;

// TransportDownloader: servers that misbehave, time-outs, and the path of the requests.
class DownloadTransferTest : public QObject, DownloadBench {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { makeKeys(); }
    void init() { prepare(); }
    void cleanup() { expectNothingLeft(); }

    void namesTheItemAndTheStatus_data()
    {
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QByteArray>("status");
        QTest::addColumn<QString>("message");
        QTest::newRow("archive") << archivePath << QByteArray("404 Not Found")
                                 << "Download of the bridge programs failed (HTTP 404).";
        QTest::newRow("archive busy") << archivePath << QByteArray("503 Busy")
                                      << "Download of the bridge programs failed (HTTP 503).";
        QTest::newRow("index") << indexPath << QByteArray("503 Busy")
                               << "Download of the version index failed (HTTP 503).";
        QTest::newRow("signature") << archivePath + ".asc" << QByteArray("404 Not Found")
                                   << "Download of signature failed (HTTP 404).";
        QTest::newRow("key") << keyPath << QByteArray("404 Not Found")
                             << "Download of signing key failed (HTTP 404).";
        QTest::newRow("a part") << archivePath << QByteArray("206 Partial")
                                << "Download of the bridge programs failed (HTTP 206).";
        QTest::newRow("nothing to send") << archivePath << QByteArray("204 Empty")
                                         << "Download of the bridge programs failed (HTTP 204).";
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

    // An error page may be longer than the expected file. The error must name the status.
    void namesTheStatusOfALongPage()
    {
        putBundle();
        serve(archivePath + ".asc", QByteArray(300 * 1024, 'x'));
        QCOMPARE(failure(), QStringLiteral("The server sent more than signature can be."));
        serve(archivePath + ".asc", QByteArray(300 * 1024, 'x'), "404 Not Found");
        QCOMPARE(failure(), QStringLiteral("Download of signature failed (HTTP 404)."));
    }

    void followsARedirectButNeverToPlainHTTP()
    {
        QTcpServer plain;
        QVERIFY(plain.listen(QHostAddress::LocalHost));
        const auto redirect = [this](const QString &target) {
            m_answers[archivePath] = [target](QSslSocket *socket) {
                socket->write("HTTP/1.1 302 Found\r\nLocation: " + target.toLatin1()
                              + "\r\nContent-Length: 0\r\n\r\n");
            };
        };
        serve("/moved", m_archive);
        redirect(QStringLiteral("https://localhost:%1/moved").arg(m_service->port()));
        QVERIFY(install()); // a redirect works as such
        redirect(QStringLiteral("http://localhost:%1/moved").arg(plain.serverPort()));
        QCOMPARE(failure(), QStringLiteral("Download of the bridge programs failed (HTTP 302)."));
        QVERIFY(!plain.hasPendingConnections());
        redirect(QStringLiteral("https://localhost:%1%2")
                     .arg(m_service->port())
                     .arg(QString::fromLatin1(archivePath)));
        // in a circle
        QCOMPARE(failure(), QStringLiteral("Download of the bridge programs failed (HTTP 302)."));
        redirect(QStringLiteral("file:///etc/passwd"));
        QCOMPARE(failure(), QStringLiteral("Download of the bridge programs failed (HTTP 302)."));
    }

    // The rest of the file must not be written after the part that failed.
    void aDiskThatIsFullIsNamed()
    {
        putBundle();
        struct LimitedFiles {
            explicit LimitedFiles(rlim_t bytes) : former(std::signal(SIGXFSZ, SIG_IGN))
            {
                ::getrlimit(RLIMIT_FSIZE, &limit);
                const rlimit less{bytes, limit.rlim_max};
                ::setrlimit(RLIMIT_FSIZE, &less);
            }
            ~LimitedFiles()
            {
                ::setrlimit(RLIMIT_FSIZE, &limit);
                std::signal(SIGXFSZ, former);
            }
            rlimit limit{};
            void (*former)(int);
        };
        QString text;
        {
            const LimitedFiles full(rlim_t(100'000));
            text = failure();
        }
        QVERIFY2(text.startsWith(QStringLiteral("Couldn't write ")), qPrintable(text));
        QCOMPARE(mark(), QByteArray("former"));
        QVERIFY(install());
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
            socket->write("HTTP/1.1 200 OK\r\nContent-Length: 1000000\r\n\r\n"
                          + m_archive.first(300'000));
        };
        const auto kept = begin();
        QTRY_VERIFY_WITH_TIMEOUT(m_progress.last().contains(QStringLiteral("0.3 of 1.0 MB (30%)")),
                                 10'000);
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
            socket->write("HTTP/1.1 200 OK\r\nContent-Length: 1000000\r\n\r\n"
                          + m_archive.first(500'000));
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
        QCOMPARE(failure(),
                 QStringLiteral("The server sent more than the bridge programs can be."));
        serve(archivePath, m_archive);
        // without an announced length
        m_answers[archivePath + ".asc"] = [](QSslSocket *socket) {
            socket->write("HTTP/1.1 200 OK\r\n\r\n" + QByteArray(400'000, 'x'));
        };
        QCOMPARE(failure(), QStringLiteral("The server sent more than signature can be."));
    }

    void throughTorEverythingGoesThroughTheProxyAlone()
    {
        SocksProxy proxy(m_service->port());
        makeDownloader(source(QStringLiteral("server.invalid"), proxy.port()));
        const Outcome outcome = install(true);
        QVERIFY2(outcome,
                 qPrintable(outcome ? QString() : outcome.error().description().english()));
        QVERIFY(proxy.connections > 0);
        for (const int type : proxy.addressTypes)
            QCOMPARE(type, 3); // by name: this computer makes no DNS lookup
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
};

VELDMARK_TEST(DownloadTransferTest)
#include "DownloadTransferTest.moc"
