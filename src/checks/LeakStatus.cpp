#include "checks/LeakStatus.h"

namespace veldmark {

QString LeakStatus::name() const
{
    switch (m_kind) {
    case Kind::exposed:
        return QStringLiteral("exposed");
    case Kind::notTested:
        return QStringLiteral("notTested");
    case Kind::checking:
        return QStringLiteral("checking");
    case Kind::blocked:
        return QStringLiteral("blocked");
    case Kind::inconclusive:
        break;
    }
    return QStringLiteral("inconclusive");
}

namespace {
LeakStatus leakStatus(bool torAnswered, const ProbeResult &direct, std::optional<RoutingMode> mode)
{
    if (!direct) {
        const bool silent = !direct.error().reachedNetwork;
        return torAnswered && silent ? LeakStatus::blocked() : LeakStatus::inconclusive();
    }
    if (!direct->isTor)
        return LeakStatus::exposed(direct->ip);
    return mode == RoutingMode::strict ? LeakStatus::blocked() : LeakStatus::inconclusive();
}
} // namespace

NetworkVerdict NetworkVerdict::of(const ProbeResult &viaTor, std::chrono::milliseconds elapsed,
                                  const ProbeResult &direct, std::optional<RoutingMode> mode)
{
    NetworkVerdict verdict;
    if (viaTor) {
        verdict.latencyMs = elapsed.count();
        verdict.exitIP = viaTor->ip;
        verdict.torVerified = viaTor->isTor;
    }
    verdict.leakStatus = veldmark::leakStatus(viaTor.has_value(), direct, mode);
    return verdict;
}

} // namespace veldmark
