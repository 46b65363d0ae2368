#include "DownloadBench.h"
#include "bridges/PluggableTransports.h"
#include "support/TestProgram.h"
#include "system/SignedBundle.h"

#include <QRegularExpression>

using namespace veldmark;

class TransportDownloaderTest : public QObject, DownloadBench {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { makeKeys(); }
    void init() { prepare(); }
    void cleanup() { expectNothingLeft(); }

    void theRealSourceIsTheTorProject()
    {
        const DownloadSource real = DownloadSource::torProject();
        QCOMPARE(real.fingerprint, QStringLiteral("EF6E286DDA85EA2A4BA7DE684E2C6E8793298290"));
        QCOMPARE(real.versionURL.path(),
                 QStringLiteral("/torbrowser/update_3/release/downloads.json"));
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
        Places places = Places::below(m_tree->root());
        places.machine = QStringLiteral("aarch64");
        *m_profile = PlatformProfile::macos(places);
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
        QVERIFY2(outcome,
                 qPrintable(outcome ? QString() : outcome.error().description().english()));
        QVERIFY(m_profile->bundleDirectory.endsWith(
            QStringLiteral("Library/Application Support/Veldmark/TorExpertBundle")));
        QCOMPARE(mark(), QByteArray("fourteen"));
        QCOMPARE(installed("VERIFIED"), QByteArray("signature"));
    }

    void installsWhatTheExpectedKeyHasSigned()
    {
        // gpgconf is installed and works
        QTest::failOnWarning(QRegularExpression(QStringLiteral("^gpgconf")));
        putBundle();
        const Outcome outcome = install();
        QVERIFY2(outcome,
                 qPrintable(outcome ? QString() : outcome.error().description().english()));
        QCOMPARE(outcome->version, QStringLiteral("14.0.4"));
        QVERIFY(outcome->isVerified);
        QCOMPARE(installed("VERSION"), QByteArray("14.0.4"));
        QCOMPARE(installed("VERIFIED"), QByteArray("signature"));
        QCOMPARE(TransportDownloader::installedVersion(*m_profile),
                 std::optional(QStringLiteral("14.0.4")));
        QCOMPARE(TransportDownloader::installedVerification(*m_profile),
                 std::optional(QStringLiteral("signature")));
        QCOMPARE(mark(), QByteArray("fourteen"));
        QCOMPARE(paths(), QByteArrayList({indexPath, archivePath, archivePath + ".asc", keyPath}));

        const PluggableTransports found = PluggableTransports::locate(*m_profile, outcome->version);
        QCOMPARE(found.source, QStringLiteral("Tor Expert Bundle 14.0.4"));
        QVERIFY(found.lyrebird && found.lyrebird->startsWith(m_profile->bundleDirectory));
    }

    void keepsWhatRootCanVerifyItBy()
    {
        const QString gpgv = m_tree->path(QStringLiteral("usr/bin/gpgv"));
        QVERIFY(QFile::link(QStringLiteral("/usr/bin/gpgv"), gpgv));
        QVERIFY(install());
        const QString kept = SignedBundle::archiveBelow(m_profile->bundleDirectory);
        QCOMPARE(m_tree->content(kept), m_archive);
        QCOMPARE(m_tree->content(SignedBundle::signatureOf(kept)), m_signature);
        const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup
            | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
        QVERIFY(!(QFile::permissions(QFileInfo(kept).path()) & others));
        const QByteArray verdict = output(gpgv,
                                          {QStringLiteral("--status-fd"), QStringLiteral("1"),
                                           QStringLiteral("--keyring"), SignedBundle::keyOf(kept),
                                           SignedBundle::signatureOf(kept), kept});
        QVERIFY(verdict.contains("VALIDSIG " + m_key->fingerprint().toLatin1()));

        QVERIFY(QFile::remove(gpgv)); // without gpgv nothing can be verified later, so the next
                                      // download keeps nothing
        QVERIFY(install());
        QVERIFY(!QFileInfo::exists(QFileInfo(kept).path()));
    }

    void whatTheArchiveHasInThatPlaceIsNotKept()
    {
        QVERIFY(QFile::link(QStringLiteral("/usr/bin/gpgv"),
                            m_tree->path(QStringLiteral("usr/bin/gpgv"))));
        const ProgramTree tree;
        tree.file(QStringLiteral("b/origin/bundle.tar.gz"), "the archive's own");
        tree.file(QStringLiteral("b/origin/more"), "the archive's own");
        output(QStringLiteral("/usr/bin/tar"),
               {QStringLiteral("-czf"), tree.path(QStringLiteral("a.tar.gz")), QStringLiteral("-C"),
                tree.path(QStringLiteral("b")), QStringLiteral(".")});
        const QByteArray archive = tree.content(QStringLiteral("a.tar.gz"));
        serveArchive(archive);
        QVERIFY(install());
        const QString kept = SignedBundle::archiveBelow(m_profile->bundleDirectory);
        QCOMPARE(m_tree->content(kept), archive);
        QVERIFY(!QFileInfo::exists(QFileInfo(kept).path() + QStringLiteral("/more")));
        QVERIFY(QFile::remove(m_tree->path(QStringLiteral("usr/bin/gpgv"))));
        QVERIFY(install());
        QVERIFY(!QFileInfo::exists(QFileInfo(kept).path()));
    }

    void tellsHowItGoes()
    {
        QVERIFY(install());
        const QString large = QStringLiteral("Downloading Tor 14.0.4 bridge programs…");
        QCOMPARE(m_progress.first(), QStringLiteral("Checking latest version…"));
        QCOMPARE(m_progress.at(1), large);
        QVERIFY2(m_progress.contains(large + QStringLiteral(" 1.0 of 1.0 MB (100%)")),
                 qPrintable(m_progress.join(u'\n')));
        QVERIFY(m_progress.size() <= 5 + 101);
        m_progress.removeIf([&large](const QString &line) { return line.startsWith(large); });
        QCOMPARE(
            m_progress,
            QStringList({QStringLiteral("Checking latest version…"),
                         QStringLiteral("Verifying signature…"), QStringLiteral("Installing…")}));
    }

    void refusesAnIndexWithoutAVersion()
    {
        serveIndex("14.0 beta");
        QCOMPARE(failure(),
                 QStringLiteral("Couldn't read the latest Tor version from torproject.org."));
        QCOMPARE(paths(), QByteArrayList({indexPath}));
        serve(indexPath, "<html>");
        QCOMPARE(failure(),
                 QStringLiteral("Couldn't read the latest Tor version from torproject.org."));
        serveIndex("14.0a1");
        QCOMPARE(failure(), QStringLiteral("Download of the bridge programs failed (HTTP 404)."));
    }

    void onlyOneAtATime()
    {
        const auto first = begin();
        QCOMPARE(failure(), QStringLiteral("Another download is under way."));
        QTRY_VERIFY_WITH_TIMEOUT(first->has_value(), 30'000);
        QVERIFY(first->value());
        QVERIFY(install());
    }

    void clearsUpAfterOneThatWasKilled()
    {
        const QString temporary = temporaryRoot()
            + QStringLiteral("/vmk-00000000-0000-4000-8000-00000000000a");
        QVERIFY(QDir().mkpath(temporary + QStringLiteral("/g")));
        const QFileInfo bundle(m_profile->bundleDirectory);
        m_tree->file(bundle.path() + QStringLiteral("/.TorExpertBundle.lock"),
                     temporary.toUtf8() + '\n');
        m_tree->file(bundle.path() + QStringLiteral("/.TorExpertBundle.old/VERSION"), "13.5");
        makeDownloader(source());
        // back in its place before anything is downloaded
        QCOMPARE(installed("VERSION"), QByteArray("13.5"));
        QVERIFY(install());
        QVERIFY(!QFileInfo::exists(temporary));
    }

    void theRealOnesTemporaryFoldersAreInTmp()
    {
        QCOMPARE(DownloadSource::torProject().temporaryRoot, QStringLiteral("/tmp"));
    }

    // Another user's downloads, or another test's.
    void whatOthersHaveInTmpIsNoneOfItsOwn()
    {
        QTemporaryDir others(QStringLiteral("/tmp/vmk-XXXXXX"));
        QVERIFY(others.isValid());
        QVERIFY(install());
        QVERIFY(QFileInfo::exists(others.path()));
        QCOMPARE(temporaryFolders(), QStringList());
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

VELDMARK_TEST(TransportDownloaderTest)
#include "TransportDownloaderTest.moc"
