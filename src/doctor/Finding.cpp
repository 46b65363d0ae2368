#include "doctor/Finding.h"

#include <algorithm>

namespace veldmark {

QString levelName(Finding::Level level)
{
    switch (level) {
    case Finding::Level::good:
        return QStringLiteral("good");
    case Finding::Level::note:
        return QStringLiteral("note");
    case Finding::Level::unknown:
        return QStringLiteral("unknown");
    case Finding::Level::problem:
        break;
    }
    return QStringLiteral("problem");
}

std::optional<bool> canConnect(const Findings &findings)
{
    const auto isAny = [&findings](const auto &wanted) {
        return std::any_of(findings.cbegin(), findings.cend(), wanted);
    };
    if (isAny([](const Finding &finding) { return finding.level == Finding::Level::problem; }))
        return false;
    if (isAny([](const Finding &finding) { return finding.mayBlock; }))
        return std::nullopt;
    return true;
}

} // namespace veldmark
