#include "bridges/BundleTools.h"

#include "base/Clock.h"
#include "bridges/ReleaseIndex.h"
#include "system/ProcessRunner.h"

#include <QFile>
#include <QFileInfo>

namespace veldmark {

namespace {

using Done = Result<void, DownloadError>;

// The failed program's error output, or why it did not run.
Text said(const Result<ProcessResult, Text> &run)
{
    return run ? Text(run->stderr.simplified()) : run.error();
}

// Uses only the source after the wait, so the task may be dropped.
QCoro::Task<void> stopAfter(Clock *clock, std::chrono::milliseconds limit, StopSource source)
{
    co_await clock->sleep(limit);
    source.request_stop();
}

} // namespace

BundleTools::BundleTools(QString tar, QString gpg, ProcessRunner *runner, Clock &clock)
    : m_runner(runner),
      m_clock(clock),
      m_tar(std::move(tar)),
      m_gpg(std::move(gpg))
{
}

void BundleTools::cancel()
{
    m_isCancelled = true;
    m_current.request_stop();
}

QCoro::Task<BundleTools::Run> BundleTools::run(std::shared_ptr<BundleTools> tools, QString program,
                                               QStringList arguments,
                                               std::chrono::milliseconds limit, StopSource current)
{
    if (!tools->m_runner)
        co_return Failure(DownloadError::cancelled().description());
    stopAfter(&tools->m_clock, limit, current);
    auto running = tools->m_runner->runUntil(program, arguments, current.get_token());
    const auto ended = co_await running;
    if (current.stop_requested())
        co_return Failure(
            Text::tr("%1 didn't end within %2 minutes.")
                .arg(QFileInfo(program).fileName())
                .arg(std::chrono::duration_cast<std::chrono::minutes>(limit).count()));
    if (!ended)
        co_return Failure(ended.error().description());
    co_return *ended;
}

QCoro::Task<Result<qint64, DownloadError>> BundleTools::verify(std::shared_ptr<BundleTools> tools,
                                                               QString home, QString key,
                                                               QString signature, QString archive,
                                                               QString fingerprint)
{
    if (tools->m_isCancelled)
        co_return Failure(DownloadError::cancelled());
    const QStringList import = {QStringLiteral("--homedir"), home,
                                QStringLiteral("--batch"),   QStringLiteral("--quiet"),
                                QStringLiteral("--import"),  key};
    tools->m_current = StopSource();
    auto importing = run(tools, tools->m_gpg, import, gnupgLimit, tools->m_current);
    const Run imported = co_await importing;
    if (tools->m_isCancelled)
        co_return Failure(DownloadError::cancelled());
    if (!imported || imported->status != 0)
        co_return Failure(DownloadError::badSignature(
            Text::tr("Couldn't load the Tor Browser signing key. %1").arg(said(imported))));

    const QStringList check = {QStringLiteral("--homedir"),
                               home,
                               QStringLiteral("--batch"),
                               QStringLiteral("--status-fd"),
                               QStringLiteral("1"),
                               QStringLiteral("--verify"),
                               signature,
                               archive};
    tools->m_current = StopSource();
    auto checking = run(tools, tools->m_gpg, check, gnupgLimit, tools->m_current);
    const Run checked = co_await checking;
    if (tools->m_isCancelled)
        co_return Failure(DownloadError::cancelled());
    const auto signedAt = checked ? signatureTime(checked->stdout, fingerprint) : std::nullopt;
    if (!signedAt) {
        QFile::remove(archive);
        co_return Failure(DownloadError::badSignature(said(checked)));
    }
    co_return *signedAt;
}

QCoro::Task<void> BundleTools::exportKey(std::shared_ptr<BundleTools> tools, QString home,
                                         QString fingerprint, QString file)
{
    if (tools->m_isCancelled)
        co_return;
    const QStringList words = {
        QStringLiteral("--homedir"), home, QStringLiteral("--batch"),  QStringLiteral("--quiet"),
        QStringLiteral("--output"),  file, QStringLiteral("--export"), fingerprint};
    tools->m_current = StopSource();
    auto exporting = run(tools, tools->m_gpg, words, gnupgLimit, tools->m_current);
    const Run exported = co_await exporting;
    if (!exported || exported->status != 0)
        QFile::remove(file);
}

QCoro::Task<Done> BundleTools::unpack(std::shared_ptr<BundleTools> tools, QString archive,
                                      QString folder)
{
    if (tools->m_isCancelled)
        co_return Failure(DownloadError::cancelled());
    // When this process is root, tar must not apply the archive's owners: those ids belong to other
    // accounts here.
    const QStringList extract = {QStringLiteral("-xzf"),
                                 archive,
                                 QStringLiteral("-C"),
                                 folder,
                                 QStringLiteral("--no-same-owner"),
                                 QStringLiteral("--no-same-permissions")};
    tools->m_current = StopSource();
    auto extracting = run(tools, tools->m_tar, extract, unpackLimit, tools->m_current);
    const Run extracted = co_await extracting;
    if (tools->m_isCancelled)
        co_return Failure(DownloadError::cancelled());
    if (!extracted || extracted->status != 0)
        co_return Failure(DownloadError::extractFailed(said(extracted)));
    co_return {};
}

QCoro::Task<void> BundleTools::endAgent(std::shared_ptr<BundleTools> tools, QString home)
{
    if (tools->m_gpg.isEmpty() || !tools->m_runner || !QFileInfo::exists(home))
        co_return;
    const QString gpgconf = QFileInfo(tools->m_gpg).absolutePath() + QStringLiteral("/gpgconf");
    const QStringList kill = {QStringLiteral("--homedir"), home, QStringLiteral("--kill"),
                              QStringLiteral("all")};
    const StopSource uncancelled;
    auto killing = run(tools, gpgconf, kill, gnupgLimit, uncancelled);
    const Run killed = co_await killing;
    if (!killed)
        qWarning("gpgconf: %s", qUtf8Printable(killed.error().english()));
}

} // namespace veldmark
