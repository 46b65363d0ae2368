#pragma once

#include "base/Clock.h"
#include "base/Text.h"
#include "checks/DNSResolver.h"
#include "checks/DNSStatus.h"

#include <functional>
#include <vector>

// Whether DNS lookups can bypass Tor: evaluates the system's settings, which ResolverSource reads,
// and makes a live test. DNSCheck.cpp has the pure functions, DNSLookup.cpp those that wait.
namespace veldmark::DNSCheck {

// The addresses at which a name server counts as Tor's.
const QStringList &torResolvers();

// Parses the output of `scutil --dns`: both sections, in their order.
std::vector<DNSResolver> parse(QStringView text);

// The resolvers that can carry lookups around Tor, without their name servers that are Tor's. Local
// link names and reverse lookups are no leak. Equal summaries are reported once.
std::vector<DNSResolver> leaks(const std::vector<DNSResolver> &resolvers);

// The status after a check. Leaks in the settings come first, then the result of this check's live
// test (absent when it made none), then the result of an earlier live test of the same session.
// Otherwise a former leak becomes `unknown`, and every other status stays. A former leak stays
// until all of the settings (`isComplete`) are known again.
DNSStatus statusAfter(const std::vector<DNSResolver> &leaks, bool isComplete,
                      const std::optional<DNSStatus> &live, bool liveVerified,
                      const DNSStatus &current);

// The text for settings that still leak after the DNS fix.
Text stillLeakingText(const QList<Text> &resolvers, bool isBlocked);

// A name that was never looked up before, in a domain that exists.
QString probeName();

// Asks the system's resolver for a name and waits for the answer. True when it found an address.
bool resolveBySystem(const QByteArray &host);

// One lookup with a hard time limit: true when `resolve` succeeded within `timeout`. It runs on its
// own thread. Nothing waits for that thread after the time-out or at the program's end.
QCoro::Task<bool> lookup(Clock &clock, QString host, std::chrono::milliseconds timeout,
                         std::function<bool(const QByteArray &host)> resolve = resolveBySystem);

// The live test's dependencies: `lookup` with a clock, and Tor's control port.
using Lookup = std::function<QCoro::Task<bool>(QString host, std::chrono::milliseconds timeout)>;
// Runs `work` while Tor reports the names that it resolves, for at most `duration`. Returns these
// names, or nothing when the program could not listen to Tor.
using CaptureResolves = std::function<QCoro::Task<std::optional<QStringList>>(
    std::chrono::milliseconds duration, std::function<QCoro::Task<void>()> work)>;

// Looks up a fresh name and checks whether Tor reported exactly that name: `throughTor` or
// `unverified`. The lookup's own result does not matter. The objects that `capture` and `lookup`
// refer to must live until the task ends.
QCoro::Task<DNSStatus> liveTest(CaptureResolves capture, Lookup lookup);

} // namespace veldmark::DNSCheck
