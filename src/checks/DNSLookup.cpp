#include "checks/DNSCheck.h"
#include "checks/TimeLimit.h"

#include <netdb.h>
#include <sys/socket.h>

#include <thread>

using namespace std::chrono_literals;

namespace veldmark::DNSCheck {

namespace {
QCoro::Task<void> lookUpAndForget(Lookup lookup, QString host, std::chrono::milliseconds timeout)
{
    auto lookingUp = lookup(host, timeout);
    co_await lookingUp;
}
} // namespace

bool resolveBySystem(const QByteArray &host)
{
    if (host.contains('\0'))
        return false; // the C function would use only the text before it
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM; // one entry per address instead of one per socket type
    addrinfo *addresses = nullptr;
    const int code = ::getaddrinfo(host.constData(), nullptr, &hints, &addresses);
    if (code == 0)
        ::freeaddrinfo(addresses);
    return code == 0;
}

QCoro::Task<bool> lookup(Clock &clock, QString host, std::chrono::milliseconds timeout,
                         std::function<bool(const QByteArray &)> resolve)
{
    const ResumeOnce<bool> found;
    std::thread([name = host.toUtf8(), resolve, found] { found.complete(resolve(name)); }).detach();
    completeAfter(&clock, timeout, found, false);
    const bool succeeded = co_await found;
    co_return succeeded;
}

QCoro::Task<DNSStatus> liveTest(CaptureResolves capture, Lookup lookup)
{
    const QString name = probeName();
    const std::function<QCoro::Task<void>()> work = [lookup, name] {
        return lookUpAndForget(lookup, name, 5s);
    };
    // The capture lasts a little longer than the lookup may take.
    auto capturing = capture(6s, work);
    const std::optional<QStringList> seen = co_await capturing;
    co_return seen && seen->contains(name) ? DNSStatus::throughTor() : DNSStatus::unverified();
}

} // namespace veldmark::DNSCheck
