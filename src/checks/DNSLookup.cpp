#include "checks/DNSCheck.h"
#include "checks/TimeLimit.h"

#include <netdb.h>
#include <sys/socket.h>

#include <thread>

using namespace std::chrono_literals;

namespace veldmark::DNSCheck {

namespace {
void resolve(const QByteArray &host, const ResumeOnce<bool> &found)
{
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM; // one entry per address instead of one per socket type
    addrinfo *addresses = nullptr;
    const int code = ::getaddrinfo(host.constData(), nullptr, &hints, &addresses);
    if (code == 0)
        ::freeaddrinfo(addresses);
    found.complete(code == 0);
}

QCoro::Task<void> lookUpAndForget(Clock *clock, QString host, std::chrono::milliseconds timeout)
{
    co_await lookup(*clock, host, timeout);
}
} // namespace

QCoro::Task<bool> lookup(Clock &clock, QString host, std::chrono::milliseconds timeout)
{
    const QByteArray name = host.toUtf8();
    if (name.contains('\0'))
        co_return false;
    const ResumeOnce<bool> found;
    std::thread([name, found] { resolve(name, found); }).detach();
    completeAfter(&clock, timeout, found, false);
    const bool succeeded = co_await found;
    co_return succeeded;
}

QCoro::Task<DNSStatus> liveTest(Clock &clock, CaptureResolves capture)
{
    const QString name = probeName();
    // Tor is listened to a little longer than the look-up may take.
    const std::function<QCoro::Task<void>()> work = [clock = &clock, name] {
        return lookUpAndForget(clock, name, 5s);
    };
    auto capturing = capture(6s, work);
    const std::optional<QStringList> seen = co_await capturing;
    co_return seen && seen->contains(name) ? DNSStatus::throughTor() : DNSStatus::unverified();
}

} // namespace veldmark::DNSCheck
