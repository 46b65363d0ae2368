#include "controller/TorController.h"

#include "platform/PlatformProfile.h"

#include <QPointer>

namespace veldmark {

namespace {
// The command that installs GnuPG, made like the one for tor: "brew install gnupg".
QString gnupgHint(const QString &torHint)
{
    const qsizetype package = torHint.indexOf(QLatin1String(" tor"));
    return package < 0 ? QStringLiteral("with ") + torHint : torHint.left(package) + QStringLiteral(" gnupg");
}
} // namespace

QCoro::Task<bool> TorController::downloadTransports()
{
    if (!canDownloadTransports() || !m_services.installTransports)
        co_return false;
    m_isDownloading = true;
    transportDownload = QStringLiteral("Starting…");

    const QPointer<TorController> self(this);
    const TransportDownloader::Progress progress = [self](const QString &text) {
        if (self)
            self->transportDownload = text;
    };
    auto installing = m_services.installTransports(phase() == ConnectionPhase::connected, progress);
    const TransportDownloader::Outcome outcome = co_await installing;
    if (!self)
        co_return false;
    if (!outcome) {
        m_isDownloading = false;
        transportDownload =
            QStringLiteral("Couldn't download bridge programs: ") + outcome.error().description();
        co_return false;
    }
    auto locating = locateTransports();
    co_await locating;
    if (!self)
        co_return false;
    m_isDownloading = false;
    transportDownload = outcome->isVerified
        ? std::nullopt
        : std::optional(QStringLiteral("Bridge programs %1 installed over HTTPS. Install GnuPG (%2) and download "
                                       "again to also verify the Tor Project's signature.")
                            .arg(outcome->version, gnupgHint(m_services.profile.torInstallHint)));
    co_return true;
}

} // namespace veldmark
