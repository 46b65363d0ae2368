#pragma once

#include "base/RoutingMode.h"
#include "checks/IPCheck.h"

#include <chrono>
#include <optional>

namespace veldmark {

// The verdict on the direct path, which bypasses Tor.
class LeakStatus {
public:
    enum class Kind { exposed, notTested, checking, blocked, inconclusive };

    LeakStatus() = default; // notTested
    static LeakStatus exposed(QString address) { return {Kind::exposed, std::move(address)}; }
    static LeakStatus notTested() { return {Kind::notTested, {}}; }
    static LeakStatus checking() { return {Kind::checking, {}}; }
    // `checking` that keeps the exposed address, since the earlier result may still hold.
    static LeakStatus checkingAfter(const LeakStatus &before)
    {
        return {Kind::checking, before.m_address};
    }
    static LeakStatus blocked() { return {Kind::blocked, {}}; }
    static LeakStatus inconclusive() { return {Kind::inconclusive, {}}; }

    Kind kind() const { return m_kind; }
    // The user's own address, as the service saw it. Empty unless `exposed`, or `checking` after
    // `exposed`.
    const QString &address() const { return m_address; }
    // A test saw the user's own address, and no later test has contradicted it.
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

// The result of two simultaneous probes.
struct NetworkVerdict {
    std::optional<qint64> latencyMs; // of the probe through Tor; absent when it failed
    std::optional<QString> exitIP;
    bool torVerified = false;
    LeakStatus leakStatus;

    friend bool operator==(const NetworkVerdict &, const NetworkVerdict &) = default;

    // `elapsed` is the duration of the probe through Tor. `mode` is the active routing mode, if
    // any.
    //
    // The direct path counts as blocked when nothing answers on it while Tor's path works, or when
    // in strict mode it also leaves through a Tor exit. A direct request with an unusable answer (a
    // captive portal's certificate, an error page) proves that the path is open: `inconclusive`.
    static NetworkVerdict of(const ProbeResult &viaTor, std::chrono::milliseconds elapsed,
                             const ProbeResult &direct, std::optional<RoutingMode> mode);
};

} // namespace veldmark
