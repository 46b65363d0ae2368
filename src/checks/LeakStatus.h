#pragma once

#include "base/RoutingMode.h"
#include "checks/IPCheck.h"

#include <chrono>
#include <optional>

namespace veldmark {

// The verdict on the direct path, the one that skips Tor.
class LeakStatus {
public:
    enum class Kind { exposed, notTested, checking, blocked, inconclusive };

    LeakStatus() = default; // notTested
    static LeakStatus exposed(QString address) { return {Kind::exposed, std::move(address)}; }
    static LeakStatus notTested() { return {Kind::notTested, {}}; }
    static LeakStatus checking() { return {Kind::checking, {}}; }
    // The same while it is not known that what was found before is over.
    static LeakStatus checkingAfter(const LeakStatus &before)
    {
        return {Kind::checking, before.m_address};
    }
    static LeakStatus blocked() { return {Kind::blocked, {}}; }
    static LeakStatus inconclusive() { return {Kind::inconclusive, {}}; }

    Kind kind() const { return m_kind; }
    // The user's own address, as the world saw it; empty unless `exposed`, or `checking` after
    // that.
    const QString &address() const { return m_address; }
    // The user's own address was seen, and no later test has said otherwise.
    bool isExposed() const
    {
        return m_kind == Kind::exposed || (m_kind == Kind::checking && !m_address.isEmpty());
    }
    // The case's name: "exposed", "notTested" …
    QString name() const;

    friend bool operator==(const LeakStatus &, const LeakStatus &) = default;

private:
    LeakStatus(Kind kind, QString address) : m_kind(kind), m_address(std::move(address)) { }

    Kind m_kind = Kind::notTested;
    QString m_address;
};

// What two probes, made side by side, say together.
struct NetworkVerdict {
    std::optional<qint64> latencyMs; // of the probe through Tor; absent when it failed
    std::optional<QString> exitIP;
    bool torVerified = false;
    LeakStatus leakStatus;

    friend bool operator==(const NetworkVerdict &, const NetworkVerdict &) = default;

    // `elapsed` is how long the probe through Tor took. `mode` is the active routing mode, if any.
    //
    // The direct path counts as blocked when nothing answers on it while Tor's path works, or when
    // in strict mode it comes out of a Tor exit as well. A direct request that got an unusable
    // answer (a captive portal's certificate, an error page) proves that the path is open:
    // inconclusive.
    static NetworkVerdict of(const ProbeResult &viaTor, std::chrono::milliseconds elapsed,
                             const ProbeResult &direct, std::optional<RoutingMode> mode);
};

} // namespace veldmark
