#pragma once

#include "base/Clock.h"
#include "base/Result.h"
#include "base/Text.h"
#include "bridges/DownloadError.h"
#include "platform/PlatformProfile.h"

#include <qcorotask.h>

#include <QSslConfiguration>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

namespace veldmark {

class ProcessRunner;

// Where the bundle comes from and which key must have signed it.
struct DownloadSource {
    // The Tor Browser Developers' key, in upper case.
    static QString signingKeyFingerprint();

    // The real source. Tests pass the `fingerprint` of their own key.
    static DownloadSource torProject(const QString &fingerprint = signingKeyFingerprint());

    QUrl versionURL;      // the index of the release channel
    QUrl distributionURL; // the folder that holds one folder per version
    QUrl keyURL;
    QString fingerprint;
    quint16 socksPort = 9050; // Tor's, on 127.0.0.1
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    // Where temporary folders are made. The path is short: GnuPG's agent makes sockets in its home,
    // whose paths are limited to about 100 characters.
    QString temporaryRoot = QStringLiteral("/tmp");

    QUrl archiveURL(const QString &version, const QString &archiveName) const;
};

struct InstalledBundle {
    QString version;
    bool isVerified = false; // by its signature, not by HTTPS alone
};

// Downloads the Tor Project's current Tor Expert Bundle, checks its signature when GnuPG is
// installed, and installs it where PluggableTransports looks for it. The old bundle stays usable
// until the new one is in its place, even after a failure or a kill. A bundle is never replaced by
// one with an older version, with an older signature, or whose own version differs from the
// announced one.
//
// Lives on the thread that owns the event loop. Blocking work runs on threads of the global pool.
// The destructor cancels a running installation.
class TransportDownloader {
public:
    using Outcome = Result<InstalledBundle, DownloadError>;
    // Receives a status line for the user, on the caller's thread. The large download's line
    // includes its progress ("… 12.3 of 30.1 MB (40%)").
    using Progress = std::function<void(Text)>;

    // `runner` and `clock` must outlive the object.
    TransportDownloader(PlatformProfile profile, ProcessRunner &runner, Clock &clock,
                        DownloadSource source = DownloadSource::torProject());
    ~TransportDownloader();
    TransportDownloader(const TransportDownloader &) = delete;
    TransportDownloader &operator=(const TransportDownloader &) = delete;

    // The whole procedure. throughTor: every request goes through Tor's SOCKS port; otherwise none
    // does. One at a time for each user; a second call fails at once. Leaves no file of its own in
    // the temporary folder, and no GnuPG agent.
    QCoro::Task<Outcome> install(bool throughTor, Progress progress);
    // Makes a running install() fail soon with "Cancelled.", after it has cleaned up.
    void cancel();

    // The contents of the installed bundle's files; absent without a bundle.
    static std::optional<QString> installedVersion(const PlatformProfile &profile);
    static std::optional<QString> installedVerification(const PlatformProfile &profile);
    // GnuPG's program: the first executable candidate.
    static std::optional<QString> gpgPath(const PlatformProfile &profile);

private:
    struct InstallerState;
    struct Job;
    static QCoro::Task<Outcome> run(std::shared_ptr<InstallerState> state, bool throughTor,
                                    Progress progress);
    static QCoro::Task<Outcome> fill(std::shared_ptr<Job> job);
    static QCoro::Task<Result<qint64, DownloadError>> verify(std::shared_ptr<Job> job,
                                                             QString archive, QUrl archiveURL);
    static QCoro::Task<Result<void, DownloadError>> unpack(std::shared_ptr<Job> job,
                                                           QString archive);
    static QCoro::Task<void> clearUp(std::shared_ptr<Job> job, QString temporary);

    std::shared_ptr<InstallerState> m_state;
};

} // namespace veldmark
