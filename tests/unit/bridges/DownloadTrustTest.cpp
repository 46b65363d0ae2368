#include "DownloadBench.h"
#include "support/TestProgram.h"

#include <QHash>
#include <QScopeGuard>

#include <sys/stat.h>
#include <unistd.h>

using namespace veldmark;
using Kind = DownloadError::Kind;

// TransportDownloader: which bundles it accepts, by signature and by content.
class DownloadTrustTest : public QObject, DownloadBench {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { makeKeys(); }
    void init() { prepare(); }
    void cleanup() { expectNothingLeft(); }

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
        QCOMPARE(TransportDownloader::gpgPath(*m_profile),
                 std::optional(m_tree->path(QStringLiteral("usr/bin/gpg"))));
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
        QTest::newRow("both keys, signature of the other")
            << right + other.publicKey() << other.sign(m_archive);
        QTest::newRow("signature of an unknown key") << right << other.sign(m_archive);
        QTest::newRow("signature of something else") << right << m_key->sign("something else");
        QTest::newRow("signed text instead of a signature")
            << right << m_key->sign("text", QStringLiteral("--sign"));
        QTest::newRow("clear-signed text")
            << right << m_key->sign("text", QStringLiteral("--clearsign"));
        QTest::newRow("no signature") << right << QByteArray("nothing\n");
        QTest::newRow("an empty file") << right << QByteArray();
        QTest::newRow("status lines")
            << right << "[GNUPG:] VALIDSIG " + m_key->fingerprint().toLatin1() + '\n';
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
        const QString prefix = QStringLiteral(
            "The download's signature didn't verify, so it was discarded. ");
        QVERIFY2(outcome.error().description().english().startsWith(prefix),
                 qPrintable(outcome.error().description().english()));
        QVERIFY(!outcome.error().description().english().contains(u'\n'));
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
        QVERIFY(install()); // it verifies until the key is revoked
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
        QVERIFY2(text.startsWith(
                     QStringLiteral("The download's signature didn't verify, so it was discarded. "
                                    "Couldn't load the Tor Browser signing key. gpg: ")),
                 qPrintable(text));
        QVERIFY(!QFileInfo::exists(m_profile->bundleDirectory));
    }

    void refusesArchivesThatReachElsewhere_data()
    {
        QTest::addColumn<QByteArray>("archive");
        const ProgramTree tree;
        tree.file(QStringLiteral("b/good"), "good");
        const auto made = [&tree](const QStringList &options) {
            output(QStringLiteral("/usr/bin/tar"),
                   QStringList{QStringLiteral("-P"), QStringLiteral("-C"),
                               tree.path(QStringLiteral("b")), QStringLiteral("-czf"),
                               tree.path(QStringLiteral("a.tar.gz"))}
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
        serveArchive(archive); // signed: this check is an additional one
        const Outcome outcome = install();
        QVERIFY(!outcome);
        QVERIFY2(outcome.error().description().english().startsWith(
                     QStringLiteral("Couldn't unpack the download. ")),
                 qPrintable(outcome.error().description().english()));
        QCOMPARE(outcome.error().kind(), Kind::extractFailed);
        QCOMPARE(mark(), QByteArray("former"));
        QVERIFY(!QFileInfo::exists(QStringLiteral("/tmp/veldmark-test-escaped")));
        const QFileInfo bundle(m_profile->bundleDirectory);
        QCOMPARE(
            QDir(bundle.path())
                .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot),
            QStringList(
                {QStringLiteral(".TorExpertBundle.lock"), QStringLiteral("TorExpertBundle")}));
    }

    void refusesAVersionThatIsOlderThanTheInstalledOne_data()
    {
        QTest::addColumn<QByteArray>("installedVersion");
        QTest::addColumn<bool>("refused");
        QTest::newRow("older") << QByteArray("14.0.3") << false;
        QTest::newRow("the same") << QByteArray("14.0.4") << false;
        QTest::newRow("newer") << QByteArray("14.0.10") << true;
        QTest::newRow("unreadable") << QByteArray("garbage") << false;
    }

    void refusesAVersionThatIsOlderThanTheInstalledOne()
    {
        QFETCH(QByteArray, installedVersion);
        QFETCH(bool, refused);
        putBundle();
        m_tree->file(m_profile->bundleDirectory + QStringLiteral("/VERSION"), installedVersion);
        const Outcome outcome = install();
        QCOMPARE(outcome.has_value(), !refused);
        QCOMPARE(mark(), refused ? QByteArray("former") : QByteArray("fourteen"));
        if (!refused)
            return;
        QCOMPARE(outcome.error().kind(), Kind::rollback);
        QCOMPARE(
            outcome.error().description(),
            QStringLiteral(
                "Version 14.0.4 is offered, which is older than the installed 14.0.10. Nothing was changed."));
        QCOMPARE(paths(), QByteArrayList({indexPath})); // before anything is downloaded
    }

    void refusesAnOlderArchiveUnderANewName()
    {
        QVERIFY(install());
        QCOMPARE(installed("SIGNED").toLongLong() > 1'700'000'000, true);
        QVERIFY(install()); // the same once more
        // The installed bundle was signed later than the served one.
        m_tree->file(m_profile->bundleDirectory + QStringLiteral("/SIGNED"),
                     QByteArray::number(installed("SIGNED").toLongLong() + 1));
        const Outcome outcome = install();
        QVERIFY(!outcome);
        QCOMPARE(outcome.error().kind(), Kind::rollback);
        QCOMPARE(
            outcome.error().description(),
            QStringLiteral(
                "The download of version 14.0.4 contains another version, so it was discarded."));
        QCOMPARE(mark(), QByteArray("fourteen"));
    }

    void refusesAnArchiveThatSaysThatItIsAnotherVersion()
    {
        putBundle();
        serveArchive(bundleArchive("other", 0, "13.0.1\n"));
        const Outcome outcome = install();
        QVERIFY(!outcome);
        QCOMPARE(outcome.error().kind(), Kind::rollback);
        QCOMPARE(mark(), QByteArray("former"));
        serveArchive(bundleArchive("announced", 0, "14.0.4\n"));
        QVERIFY(install());
        QCOMPARE(mark(), QByteArray("announced"));
    }

    void theTemporaryFolderIsTheUsersAlone()
    {
        const mode_t former = ::umask(0);
        const auto restore = qScopeGuard([former] { ::umask(former); });
        QHash<QString, uint> modes;
        m_service->respond = [this, &modes](QSslSocket *socket) {
            for (const QString &name : temporaryFolders()) {
                struct stat status { };
                const QByteArray path = QFile::encodeName(temporaryRoot() + u'/' + name);
                if (::stat(path.constData(), &status) == 0)
                    modes.insert(name, status.st_mode & 07777);
            }
            const QByteArray path = m_service->requests.last().split(' ').value(1);
            m_answers.value(path, CheckService::answer("404 Not Found", "no such page"))(socket);
        };
        QVERIFY(install());
        QCOMPARE(modes.size(), 1); // it existed
        QCOMPARE(modes.constBegin().value(), 0700U);
    }

    void tarTakesNoOwnersAndNoPermissionsOver()
    {
        // In tar's place: records its arguments, then runs tar.
        const QString seen = m_tree->path(QStringLiteral("seen"));
        QFile::remove(m_tree->path(QStringLiteral("usr/bin/tar")));
        m_tree->program(QStringLiteral("usr/bin/tar"),
                        "#!/bin/sh\necho \"$*\" >>'" + seen.toUtf8()
                            + "'\nexec /usr/bin/tar \"$@\"\n");
        QVERIFY(install());
        const QByteArrayList calls = m_tree->content(QStringLiteral("seen")).trimmed().split('\n');
        QCOMPARE(calls.size(), 3); // two listings, then the unpacking
        const QByteArrayList words = calls.last().split(' ');
        QCOMPARE(words.value(0), QByteArray("-xzf"));
        QVERIFY2(words.value(1).startsWith(QFile::encodeName(temporaryRoot()) + "/vmk-")
                     && words.value(1).endsWith("/archive.tar.gz"),
                 words.value(1).constData());
        QCOMPARE(words.value(2), QByteArray("-C"));
        QVERIFY2(words.value(3).contains("/.TorExpertBundle.new-"), words.value(3).constData());
        QCOMPARE(words.mid(4), QByteArrayList({"--no-same-owner", "--no-same-permissions"}));
    }
};

VELDMARK_TEST(DownloadTrustTest)
#include "DownloadTrustTest.moc"
