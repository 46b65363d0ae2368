#pragma once

#include "../checks/CheckService.h"
#include "../checks/SocksProxy.h"
#include "BundleBench.h"
#include "bridges/TransportDownloader.h"
#include "support/ManualClock.h"
#include "system/ChildProcessRunner.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace veldmark {

inline const QByteArray indexPath = "/index.json";
inline const QByteArray keyPath = "/key";
inline const QByteArray archivePath
    = "/torbrowser/14.0.4/tor-expert-bundle-linux-x86_64-14.0.4.tar.gz";

inline QCoro::Task<void> keep(QCoro::Task<TransportDownloader::Outcome> task,
                              std::shared_ptr<std::optional<TransportDownloader::Outcome>> kept)
{
    TransportDownloader::Outcome outcome = co_await task;
    *kept = outcome;
}

// The fixture of TransportDownloader's tests: a downloader with a server, a signing key, a system
// and its own folder for temporary folders. It leaves other programs' files in /tmp alone.
class DownloadBench {
protected:
    using Outcome = TransportDownloader::Outcome;

    // For all tests of a class.
    void makeKeys()
    {
        m_certificates = std::make_unique<TestCertificates>();
        m_tls = m_certificates->server(QStringLiteral("DNS:localhost,DNS:server.invalid"));
        m_key = std::make_unique<SigningKey>(QStringLiteral("Right"));
        m_archive = bundleArchive("fourteen", 1'000'000);
        m_signature = m_key->sign(m_archive);
    }

    // Before and after each test.
    void prepare()
    {
        m_temporaries = std::make_unique<QTemporaryDir>(QStringLiteral("/tmp/d-XXXXXX"));
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
            const auto answer = m_answers.value(
                path, CheckService::answer("404 Not Found", "no such page"));
            answer(socket);
        };
        serveIndex("14.0.4");
        serve(keyPath, m_key->publicKey());
        serve(archivePath, m_archive);
        serve(archivePath + ".asc", m_signature);
        makeDownloader(source());
    }
    void expectNothingLeft()
    {
        m_downloader.reset();
        m_clock.reset();
        m_service.reset();
        m_runner.reset();
        QCOMPARE(temporaryFolders(), QStringList());
        QCOMPARE(agents(), QStringList());
    }

    QString temporaryRoot() const { return m_temporaries->path(); }
    QStringList temporaryFolders() const
    {
        return QDir(temporaryRoot())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    // Command lines of processes that still run there.
    QStringList agents() const
    {
        QStringList found;
        for (const QString &number : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
            QFile file(QStringLiteral("/proc/%1/cmdline").arg(number));
            if (number.front().isDigit() && file.open(QIODevice::ReadOnly)) {
                const QByteArray line = file.readAll();
                if (line.contains(QFile::encodeName(temporaryRoot())))
                    found << QString::fromUtf8(line).replace(QChar(u'\0'), u' ');
            }
        }
        return found;
    }

    std::unique_ptr<TestCertificates> m_certificates;
    std::unique_ptr<SigningKey> m_key;
    QSslConfiguration m_tls;
    QByteArray m_archive;
    QByteArray m_signature;

    // Made for each test; the downloader is destroyed first.
    std::unique_ptr<ProgramTree> m_tree;
    std::unique_ptr<PlatformProfile> m_profile;
    std::unique_ptr<ManualClock> m_clock;
    std::unique_ptr<ChildProcessRunner> m_runner;
    std::unique_ptr<CheckService> m_service;
    std::unique_ptr<TransportDownloader> m_downloader;
    QMap<QByteArray, CheckService::Respond> m_answers; // by path
    QStringList m_progress;
    std::unique_ptr<QTemporaryDir> m_temporaries;

    void serve(const QByteArray &path, const QByteArray &body, const QByteArray &status = "200 OK")
    {
        m_answers[path] = CheckService::answer(status, body);
    }

    void serveIndex(const QByteArray &version)
    {
        serve(indexPath, "{\"version\": \"" + version + "\"}");
    }

    void serveArchive(const QByteArray &archive)
    {
        serve(archivePath, archive);
        serve(archivePath + ".asc", m_key->sign(archive));
    }

    DownloadSource source(const QString &host = QStringLiteral("localhost"), quint16 socksPort = 1)
    {
        const QString server = QStringLiteral("https://%1:%2").arg(host).arg(m_service->port());
        return {QUrl(server + QString::fromLatin1(indexPath)),
                QUrl(server + QStringLiteral("/torbrowser/")),
                QUrl(server + QString::fromLatin1(keyPath)),
                m_key->fingerprint(),
                socksPort,
                m_certificates->client(),
                temporaryRoot()};
    }

    void makeDownloader(const DownloadSource &from)
    {
        m_downloader = std::make_unique<TransportDownloader>(*m_profile, *m_runner, *m_clock, from);
    }

    std::shared_ptr<std::optional<Outcome>> begin(bool throughTor = false)
    {
        m_progress.clear();
        const auto kept = std::make_shared<std::optional<Outcome>>();
        const TransportDownloader::Progress progress = [this](const Text &text) {
            m_progress << text.english();
        };
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
        return outcome ? QStringLiteral("It was installed.")
                       : outcome.error().description().english();
    }

    QByteArray installed(const char *name) const
    {
        return m_tree->content(m_profile->bundleDirectory + u'/' + QLatin1String(name)).trimmed();
    }

    QByteArray mark() const
    {
        const QString program = m_profile->bundleDirectory
            + QStringLiteral("/tor/pluggable_transports/lyrebird");
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
        m_tree->program(m_profile->bundleDirectory
                            + QStringLiteral("/tor/pluggable_transports/lyrebird"),
                        "#!/bin/sh\necho former\n");
        m_tree->file(m_profile->bundleDirectory + QStringLiteral("/VERSION"), "13.5\n");
    }
};

} // namespace veldmark
