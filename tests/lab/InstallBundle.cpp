// Runs the real downloader with its real addresses, for the lab's host only. The shipped program
// accepts no key but the Tor Project's.
//
//     InstallBundle FINGERPRINT direct|tor [fast]
//
// Prints each progress line, then "installed VERSION signature|https", or "failed: " with the
// reason and exit status 1. With "fast" its clock runs sixty times as fast, so that a time-out
// of a minute comes after a second. SIGKILL is the only signal that it expects.

#include "base/Clock.h"
#include "bridges/TransportDownloader.h"
#include "platform/PlatformProfile.h"
#include "system/ChildProcessRunner.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>

using namespace veldmark;

namespace {

class FastClock final : public Clock {
public:
    explicit FastClock(int speed) : m_speed(speed) { }
    TimePoint now() const override
    {
        return TimePoint(std::chrono::steady_clock::now().time_since_epoch() * m_speed);
    }
    QCoro::Task<void> sleep(std::chrono::milliseconds duration) override
    {
        const std::chrono::milliseconds real = duration / m_speed;
        co_await m_clock.sleep(real);
    }

private:
    const int m_speed;
    SystemClock m_clock;
};

void print(const QString &line)
{
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

QCoro::Task<void> install(TransportDownloader *downloader, bool throughTor)
{
    const TransportDownloader::Progress progress = [](const Text &text) { print(text.english()); };
    auto installing = downloader->install(throughTor, progress);
    const TransportDownloader::Outcome outcome = co_await installing;
    print(outcome ? QStringLiteral("installed %1 %2")
                        .arg(outcome->version,
                             outcome->isVerified ? QStringLiteral("signature")
                                                 : QStringLiteral("https"))
                  : QStringLiteral("failed: ") + outcome.error().description().english());
    QCoreApplication::exit(outcome ? 0 : 1);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const PlatformProfile profile = PlatformProfile::linux(Places::fromEnvironment());
    FastClock clock(arguments.value(3) == u"fast" ? 60 : 1);
    ChildProcessRunner processes;
    TransportDownloader downloader(profile, processes, clock,
                                   DownloadSource::torProject(arguments.value(1)));
    QTimer::singleShot(0, &application,
                       [&] { install(&downloader, arguments.value(2) == u"tor"); });
    return QCoreApplication::exec();
}
