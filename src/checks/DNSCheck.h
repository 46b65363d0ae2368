#pragma once

#include "base/Clock.h"
#include "base/Text.h"
#include "checks/DNSResolver.h"
#include "checks/DNSStatus.h"

#include <functional>
#include <vector>

// Whether look-ups can leave the computer around Tor: a reading of the system's settings, which
// ResolverSource fetches, and a live test. The pure half is in DNSCheck.cpp, what waits in
// DNSLookup.cpp.
namespace veldmark::DNSCheck {

// At these addresses a name server counts as Tor's.
const QStringList &torResolvers();

// Reads what `scutil --dns` prints. Both of its sections, in their order.
std::vector<DNSResolver> parse(QStringView text);

// The resolvers that can carry look-ups around Tor, reduced to their name servers that are not
// Tor's. Local link names and reverse look-ups are no leak. Equal summaries are reported once.
std::vector<DNSResolver> leaks(const std::vector<DNSResolver> &resolvers);

// The status after a check: leaks in the settings come first, then the result of this check's live
// test (absent when none was made), then what an earlier live test of the same session proved.
// Otherwise a leak that is no longer there becomes `unknown`, and everything else stays.
DNSStatus statusAfter(const std::vector<DNSResolver> &leaks, const std::optional<DNSStatus> &live,
                      bool liveVerified, const DNSStatus &current);

// What the user reads when the settings leak even after they were fixed.
Text stillLeakingText(const QStringList &summaries, bool isBlocked);

// A name that nobody has looked up before, under a domain that exists.
QString probeName();

// Asks the system's resolver for a name and waits for its answer. True when it found an address.
bool resolveBySystem(const QByteArray &host);

// One look-up with a hard time limit: true when `resolve` succeeded within `timeout`. It runs on a
// thread of its own that nobody waits for, neither after the time-out nor at the program's end.
QCoro::Task<bool> lookup(Clock &clock, QString host, std::chrono::milliseconds timeout,
                         std::function<bool(const QByteArray &host)> resolve = resolveBySystem);

// What the live test needs: `lookup` with a clock, and Tor's control port.
using Lookup = std::function<QCoro::Task<bool>(QString host, std::chrono::milliseconds timeout)>;
// Runs `work` while Tor reports the names that it is asked to resolve, for at most `duration`;
// gives back these names, or nothing when Tor could not be listened to.
using CaptureResolves = std::function<QCoro::Task<std::optional<QStringList>>(
    std::chrono::milliseconds duration, std::function<QCoro::Task<void>()> work)>;

// Looks up a fresh name and asks whether Tor saw exactly that: `throughTor` or `unverified`. What
// the look-up itself says does not matter. What the two refer to must live until the task ends.
QCoro::Task<DNSStatus> liveTest(CaptureResolves capture, Lookup lookup);

} // namespace veldmark::DNSCheck
