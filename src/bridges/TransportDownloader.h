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

// Where the bundle comes from and who must have signed it.
struct DownloadSource {
    // Of the Tor Browser Developers, in upper case.
    static QString signingKeyFingerprint();

    // The real one. `fingerprint` is for tests with a key of their own.
    static DownloadSource torProject(const QString &fingerprint = signingKeyFingerprint());

    QUrl versionURL;      // the index of the release channel
    QUrl distributionURL; // of the folder that holds one folder per version
    QUrl keyURL;
    QString fingerprint;
    quint16 socksPort = 9050; // Tor's, on 127.0.0.1
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    // The folder of the temporary folders. A short path: GnuPG's agent makes sockets in its home,
    // whose names may have about 100 characters.
    QString temporaryRoot = QStringLiteral("/tmp");

    QUrl archiveURL(const QString &version, const QString &archiveName) const;
};

struct InstalledBundle {
    QString version;
    bool isVerified = false; // by its signature, not by HTTPS alone
};

// Fetches the Tor Project's current Tor Expert Bundle, checks its signature when GnuPG is there,
// and installs it where PluggableTransports looks for it. The bundle that was there stays usable
// until the new one stands in its place, whatever happens in between. It is never replaced by an
// older one: neither one whose version is older, nor one that was signed before it, nor one that
// says itself that it is another version than was announced.
//
// Lives on the thread that owns the event loop. Whatever blocks is done on threads of the global
// pool. Destroying it cancels what is under way.
class TransportDownloader {
public:
    using Outcome = Result<InstalledBundle, DownloadError>;
    // Hears a line for the user, on the caller's thread; the line of the large download grows by
    // how far it is ("… 12.3 of 30.1 MB (40%)").
    using Progress = std::function<void(Text)>;

    // `runner` and `clock` must outlive the object.
    TransportDownloader(PlatformProfile profile, ProcessRunner &runner, Clock &clock,
                        DownloadSource source = DownloadSource::torProject());
    ~TransportDownloader();
    TransportDownloader(const TransportDownloader &) = delete;
    TransportDownloader &operator=(const TransportDownloader &) = delete;

    // The whole procedure. throughTor: every request goes through Tor's SOCKS port; else none does.
    // One at a time for each user; a second one fails at once. Nothing of its own is left in the
    // temporary folder, and no GnuPG agent.
    QCoro::Task<Outcome> install(bool throughTor, Progress progress);
    // Makes an install() that is under way fail soon with "Cancelled.", having cleared up.
    void cancel();

    // What stands in the installed bundle's files; nothing where there is none.
    static std::optional<QString> installedVersion(const PlatformProfile &profile);
    static std::optional<QString> installedVerification(const PlatformProfile &profile);
    // GnuPG's program: the first that can be executed.
    static std::optional<QString> gpgPath(const PlatformProfile &profile);

private:
    struct Means;
    struct Job;
    static QCoro::Task<Outcome> run(std::shared_ptr<Means> means, bool throughTor,
                                    Progress progress);
    static QCoro::Task<Outcome> fill(std::shared_ptr<Job> job);
    static QCoro::Task<Result<qint64, DownloadError>> verify(std::shared_ptr<Job> job,
                                                             QString archive, QUrl archiveURL);
    static QCoro::Task<Result<void, DownloadError>> unpack(std::shared_ptr<Job> job,
                                                           QString archive);
    static QCoro::Task<void> clearUp(std::shared_ptr<Job> job, QString temporary);

    std::shared_ptr<Means> m_means;
};

} // namespace veldmark
