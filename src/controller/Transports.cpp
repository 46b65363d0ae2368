#include "controller/TorController.h"

#include "platform/PlatformProfile.h"

#include <QPointer>

#include <utility>

namespace veldmark {

namespace {
// The command that installs GnuPG, derived from the command for tor: "brew install gnupg".
Text gnupgHint(const QString &torHint)
{
    const qsizetype package = torHint.indexOf(QLatin1String(" tor"));
    return package < 0 ? Text::tr("with your package manager")
                       : Text(torHint.left(package) + QStringLiteral(" gnupg"));
}
} // namespace

// Traffic around Tor after the user has asked for Tor would reveal who connects.
void TorController::interruptDirectDownload()
{
    if (!m_downloadsDirectly || !m_services.cancelTransports)
        return;
    m_downloadInterrupted = true;
    m_services.cancelTransports();
}

QCoro::Task<TransportDownloader::Outcome> TorController::fetchTransports()
{
    const QPointer<TorController> self(this);
    const TransportDownloader::Progress progress = [self](const Text &text) {
        if (self)
            self->transportDownload = text;
    };
    for (;;) {
        const bool throughTor = phase() == ConnectionPhase::connected;
        m_downloadsDirectly = !throughTor;
        auto installing = m_services.installTransports(throughTor, progress);
        const TransportDownloader::Outcome outcome = co_await installing;
        if (!self)
            co_return outcome;
        m_downloadsDirectly = false;
        if (!std::exchange(m_downloadInterrupted, false) || outcome)
            co_return outcome;
        transportDownload = Text::tr("The download begins again when Tor is connected…");
        while (isChanging(phase())) {
            const ResumeOnce<bool> changed;
            m_downloadWait = changed;
            const auto heard = QObject::connect(&phase, &Field::changed, this,
                                                [changed] { changed.complete(true); });
            co_await changed;
            if (!self)
                co_return Failure(DownloadError::other(Text())); // the result is unused
            QObject::disconnect(heard);
        }
        m_downloadWait.reset();
    }
}

QCoro::Task<bool> TorController::downloadTransports()
{
    if (!canDownloadTransports() || !m_services.installTransports)
        co_return false;
    m_isDownloading = true;
    transportDownload = Text::tr("Starting…");

    const QPointer<TorController> self(this);
    auto fetching = fetchTransports();
    const TransportDownloader::Outcome outcome = co_await fetching;
    if (!self)
        co_return false;
    if (!outcome) {
        m_isDownloading = false;
        transportDownload
            = Text::tr("Couldn't download bridge programs: %1").arg(outcome.error().description());
        co_return false;
    }
    auto locating = locateTransports();
    co_await locating;
    if (!self)
        co_return false;
    m_isDownloading = false;
    transportDownload = outcome->isVerified
        ? std::nullopt
        : std::optional(
            Text::tr("Bridge programs %1 installed over HTTPS. Install GnuPG (%2) and download "
                     "again to also verify the Tor Project's signature.")
                .arg(outcome->version, gnupgHint(m_services.profile.torInstallHint)));
    co_return true;
}

} // namespace veldmark
