#include "bridges/TransportDownloader.h"

#include "base/ProgramFile.h"
#include "base/ResumeOnce.h"
#include "bridges/BundleArchive.h"
#include "bridges/BundleFolder.h"
#include "bridges/BundleTools.h"
#include "bridges/HTTPSSession.h"
#include "bridges/ReleaseIndex.h"
#include "system/SignedBundle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QThreadPool>
#include <QUuid>

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace veldmark {

namespace {

using Done = Result<void, DownloadError>;

// Several times the present size of each.
constexpr qint64 indexLimitBytes = 8 * 1024 * 1024;
constexpr qint64 keyLimitBytes = 4 * 1024 * 1024;
constexpr qint64 signatureLimitBytes = 256 * 1024;
constexpr qint64 archiveLimitBytes = 256 * 1024 * 1024;

// Runs blocking work on a thread of the pool.
template <typename T> QCoro::Task<T> elsewhere(std::function<T()> work)
{
    const ResumeOnce<T> done;
    QThreadPool::globalInstance()->start([done, work] { done.complete(work()); });
    T result = co_await done;
    co_return result;
}

QString newTemporaryName(const QString &root)
{
    return root + QStringLiteral("/vmk-") + QUuid::createUuid().toString(QUuid::WithoutBraces);
}

bool isTemporaryName(const QString &root, const QString &path)
{
    const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        QRegularExpression::escape(root) + QStringLiteral("/vmk-[0-9a-f-]{36}")));
    struct stat status { };
    return pattern.match(path).hasMatch()
        && ::lstat(QFile::encodeName(path).constData(), &status) == 0
        && status.st_uid == ::geteuid();
}

QString gnupgHome(const QString &temporary)
{
    return temporary + QStringLiteral("/g");
}

bool makePrivateFolder(const QString &path)
{
    return ::mkdir(QFile::encodeName(path).constData(), 0700) == 0;
}

// Adds the progress of the large download to its status line, once for each per cent, or for each
// megabyte when the size is unknown.
class DownloadLine {
public:
    DownloadLine(Text line, TransportDownloader::Progress progress)
        : m_line(std::move(line)),
          m_progress(std::move(progress))
    {
    }

    void operator()(qint64 received, qint64 total)
    {
        const qint64 step = total > 0 ? received * 100 / total : received / 1'000'000;
        if (step == std::exchange(m_step, step))
            return;
        m_progress(Text::joined({m_line, progressText(received, total)}));
    }

private:
    Text m_line;
    TransportDownloader::Progress m_progress;
    qint64 m_step = -1;
};

} // namespace

// The state that an installation uses; it may outlive the downloader.
struct TransportDownloader::InstallerState {
    PlatformProfile profile;
    ProcessRunner *runner; // null once the downloader is gone
    Clock *clock;
    DownloadSource source;
    std::weak_ptr<HTTPSSession> session; // of the running installation
    std::weak_ptr<BundleTools> tools;    // of the running installation
    bool isCancelled = false;
    bool isBusy = false;
};

// One running installation.
struct TransportDownloader::Job {
    std::shared_ptr<InstallerState> state;
    std::shared_ptr<BundleFolder> folder;
    std::shared_ptr<HTTPSSession> session;
    std::shared_ptr<BundleTools> tools;
    QString temporary;
    Progress report;

    QString at(const char *name) const { return temporary + u'/' + QLatin1String(name); }
};

QString DownloadSource::signingKeyFingerprint()
{
    return QStringLiteral("EF6E286DDA85EA2A4BA7DE684E2C6E8793298290");
}

DownloadSource DownloadSource::torProject(const QString &fingerprint)
{
    return {QUrl(QStringLiteral(
                "https://aus1.torproject.org/torbrowser/update_3/release/downloads.json")),
            QUrl(QStringLiteral("https://dist.torproject.org/torbrowser/")),
            QUrl(QStringLiteral("https://keys.openpgp.org/vks/v1/by-fingerprint/") + fingerprint),
            fingerprint};
}

QUrl DownloadSource::archiveURL(const QString &version, const QString &archiveName) const
{
    return QUrl(distributionURL.toString() + version + u'/' + archiveName);
}

TransportDownloader::TransportDownloader(PlatformProfile profile, ProcessRunner &runner,
                                         Clock &clock, DownloadSource source)
    : m_state(std::make_shared<InstallerState>(InstallerState{
        std::move(profile), &runner, &clock, std::move(source), {}, {}, false, false}))
{
    // Restores a bundle that a killed installation had moved away between its two steps.
    if (!QFileInfo::exists(m_state->profile.bundleDirectory)
        && QFileInfo::exists(QFileInfo(m_state->profile.bundleDirectory).absolutePath()))
        BundleFolder::claim(m_state->profile.bundleDirectory);
}

TransportDownloader::~TransportDownloader()
{
    cancel();
    m_state->runner = nullptr;
    if (const auto tools = m_state->tools.lock())
        tools->forget();
}

void TransportDownloader::cancel()
{
    m_state->isCancelled = true;
    if (const auto session = m_state->session.lock())
        session->cancel();
    if (const auto tools = m_state->tools.lock())
        tools->cancel();
}

std::optional<QString> TransportDownloader::installedVersion(const PlatformProfile &profile)
{
    return BundleRecord::read(profile.bundleDirectory).version;
}

std::optional<QString> TransportDownloader::installedVerification(const PlatformProfile &profile)
{
    return BundleRecord::read(profile.bundleDirectory).verification;
}

std::optional<QString> TransportDownloader::gpgPath(const PlatformProfile &profile)
{
    for (const QString &folder : profile.gnupgCandidates) {
        const QString program = folder + QStringLiteral("/gpg");
        if (isProgram(program))
            return program;
    }
    return std::nullopt;
}

QCoro::Task<TransportDownloader::Outcome> TransportDownloader::install(bool throughTor,
                                                                       Progress progress)
{
    return run(m_state, throughTor, std::move(progress));
}

QCoro::Task<TransportDownloader::Outcome> TransportDownloader::run(
    std::shared_ptr<InstallerState> state, bool throughTor, Progress progress)
{
    if (state->isBusy)
        co_return Failure(DownloadError::other(Text::tr("Another download is under way.")));
    state->isBusy = true;
    state->isCancelled = false;
    progress(Text::tr("Checking latest version…"));

    using Claim = Result<std::shared_ptr<BundleFolder>, Text>;
    const std::function<Claim()> claim = [folder = state->profile.bundleDirectory] {
        return BundleFolder::claim(folder);
    };
    auto claiming = elsewhere<Claim>(claim);
    const Claim folder = co_await claiming;
    if (!folder) {
        state->isBusy = false;
        co_return Failure(DownloadError::other(folder.error()));
    }

    const auto job = std::make_shared<Job>();
    job->state = state;
    job->folder = *folder;
    job->temporary = newTemporaryName(state->source.temporaryRoot);
    job->report = std::move(progress);
    job->tools = std::make_shared<BundleTools>(
        state->profile.places.root + QStringLiteral("/usr/bin/tar"),
        gpgPath(state->profile).value_or(QString()), state->runner, *state->clock);
    state->tools = job->tools;
    if (state->isCancelled)
        job->tools->cancel();
    if (isTemporaryName(state->source.temporaryRoot, job->folder->forgotten())) {
        auto clearing = clearUp(job, job->folder->forgotten());
        co_await clearing;
    }
    job->folder->note(job->temporary);
    const std::optional<quint16> proxy = throughTor ? std::optional(state->source.socksPort)
                                                    : std::nullopt;

    Outcome outcome = Failure(DownloadError::cancelled());
    if (state->runner && !state->isCancelled) {
        job->session = std::make_shared<HTTPSSession>(*state->clock, proxy, state->source.tls);
        state->session = job->session;
        auto filling = fill(job);
        outcome = co_await filling;
        job->session.reset();
        if (!outcome && state->isCancelled) // whichever step noticed the cancel first
            outcome = Failure(DownloadError::cancelled());
    }
    auto clearing = clearUp(job, job->temporary);
    co_await clearing;
    job->folder->note(QString());
    state->isBusy = false;
    co_return outcome;
}

QCoro::Task<TransportDownloader::Outcome> TransportDownloader::fill(std::shared_ptr<Job> job)
{
    const std::shared_ptr<InstallerState> state = job->state;
    const DownloadSource &source = state->source;
    const auto isGone = [state] { return state->isCancelled || !state->runner; };

    const Fetch index{source.versionURL, Text::tr("the version index"), indexLimitBytes, {}, {}};
    auto asking = HTTPSSession::fetch(job->session, index);
    const auto listed = co_await asking;
    if (!listed)
        co_return Failure(listed.error());
    const std::optional<QString> version = latestVersion(*listed);
    if (!version)
        co_return Failure(DownloadError::badVersion());
    // An old bundle, with defects fixed since, has a valid signature, too.
    const BundleRecord former = BundleRecord::read(state->profile.bundleDirectory);
    if (former.version && isOlderVersion(*version, *former.version))
        co_return Failure(DownloadError::olderVersion(*version, *former.version));

    if (!makePrivateFolder(job->temporary))
        co_return Failure(DownloadError::other(Text::tr("Couldn't make the folder %1: %2.")
                                                   .arg(job->temporary, qt_error_string(errno))));
    const QString archive = job->at("archive.tar.gz");
    const QUrl archiveURL = source.archiveURL(
        *version, state->profile.bundleArchivePrefix + *version + QStringLiteral(".tar.gz"));
    const Text line = Text::tr("Downloading Tor %1 bridge programs…").arg(*version);
    job->report(line);
    const Fetch large{archiveURL, Text::tr("the bridge programs"), archiveLimitBytes, archive,
                      DownloadLine(line, job->report)};
    auto downloading = HTTPSSession::fetch(job->session, large);
    const auto downloaded = co_await downloading;
    if (!downloaded)
        co_return Failure(downloaded.error());

    const bool hasGnuPG = job->tools->hasGnuPG();
    qint64 signedAt = 0;
    if (hasGnuPG) {
        auto verifying = verify(job, archive, archiveURL);
        const Result<qint64, DownloadError> verified = co_await verifying;
        if (!verified)
            co_return Failure(verified.error());
        signedAt = *verified;
        // The signature covers the content, not the name under which the server offers it.
        if (former.signedAt && signedAt < former.signedAt->toLongLong())
            co_return Failure(DownloadError::otherContent(*version));
    }
    if (isGone())
        co_return Failure(DownloadError::cancelled());

    job->report(Text::tr("Installing…"));
    auto unpacking = unpack(job, archive);
    const Done unpacked = co_await unpacking;
    if (!unpacked)
        co_return Failure(unpacked.error());
    const auto inside = job->folder->freshVersion();
    if (inside && *inside != *version)
        co_return Failure(DownloadError::otherContent(*version));
    if (isGone())
        co_return Failure(DownloadError::cancelled());

    const InstalledBundle bundle{*version, hasGnuPG};
    using Published = Result<void, Text>;
    const bool isKept = hasGnuPG && SignedBundle::isOfUse(state->profile);
    const std::function<Published()> publish = [folder = job->folder, bundle, signedAt, isKept,
                                                archive, signature = job->at("archive.tar.gz.asc"),
                                                key = job->at("key.gpg")] {
        if (isKept)
            folder->keepOrigin(archive, signature, key);
        else
            folder->forgetOrigin();
        return folder->publish(bundle.version, bundle.isVerified, signedAt);
    };
    auto publishing = elsewhere<Published>(publish);
    const Published published = co_await publishing;
    if (!published)
        co_return Failure(DownloadError::other(published.error()));
    co_return bundle;
}

QCoro::Task<Result<qint64, DownloadError>> TransportDownloader::verify(std::shared_ptr<Job> job,
                                                                       QString archive,
                                                                       QUrl archiveURL)
{
    const std::shared_ptr<InstallerState> state = job->state;
    const QString signature = job->at("archive.tar.gz.asc");
    const QUrl signatureURL(archiveURL.toString() + QStringLiteral(".asc"));
    const Fetch small{signatureURL, Text::tr("signature"), signatureLimitBytes, signature, {}};
    auto downloading = HTTPSSession::fetch(job->session, small);
    const auto downloaded = co_await downloading;
    if (!downloaded)
        co_return Failure(downloaded.error());

    job->report(Text::tr("Verifying signature…"));
    const QString key = job->at("key.asc");
    const Fetch asking{state->source.keyURL, Text::tr("signing key"), keyLimitBytes, key, {}};
    auto fetching = HTTPSSession::fetch(job->session, asking);
    const auto fetched = co_await fetching;
    if (!fetched)
        co_return Failure(fetched.error());

    const QString home = gnupgHome(job->temporary);
    if (!makePrivateFolder(home))
        co_return Failure(DownloadError::other(
            Text::tr("Couldn't make the folder %1: %2.").arg(home, qt_error_string(errno))));
    auto verifying = BundleTools::verify(job->tools, home, key, signature, archive,
                                         state->source.fingerprint);
    const Result<qint64, DownloadError> verified = co_await verifying;
    if (verified && SignedBundle::isOfUse(state->profile)) {
        auto exporting = BundleTools::exportKey(job->tools, home, state->source.fingerprint,
                                                job->at("key.gpg"));
        co_await exporting;
    }
    co_return verified;
}

QCoro::Task<Done> TransportDownloader::unpack(std::shared_ptr<Job> job, QString archive)
{
    using Problem = std::optional<Text>;
    const std::function<Problem()> look = [tar = job->tools->tar(), archive] {
        return archiveProblem(tar, archive);
    };
    auto looking = elsewhere<Problem>(look);
    const Problem hostile = co_await looking;
    if (hostile)
        co_return Failure(DownloadError::extractFailed(*hostile));

    const auto folder = job->folder->fresh();
    if (!folder)
        co_return Failure(DownloadError::other(folder.error()));
    auto extracting = BundleTools::unpack(job->tools, archive, *folder);
    const Done extracted = co_await extracting;
    if (!extracted)
        co_return Failure(extracted.error());

    const std::function<Problem()> settle = [unpacked = *folder] {
        return settleUnpacked(unpacked);
    };
    auto settling = elsewhere<Problem>(settle);
    const Problem odd = co_await settling;
    if (odd)
        co_return Failure(DownloadError::extractFailed(*odd));
    co_return {};
}

// Stops the agent that GnuPG may have started in a temporary folder, then removes the folder and an
// unfinished bundle.
QCoro::Task<void> TransportDownloader::clearUp(std::shared_ptr<Job> job, QString temporary)
{
    auto ending = BundleTools::endAgent(job->tools, gnupgHome(temporary));
    co_await ending;
    const std::function<bool()> remove = [temporary, folder = job->folder] {
        removeTree(temporary);
        folder->discard();
        return true;
    };
    auto removing = elsewhere<bool>(remove);
    const bool removed = co_await removing;
    Q_UNUSED(removed)
}

} // namespace veldmark
