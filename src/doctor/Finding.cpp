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

bool canConnect(const Findings &findings)
{
    return std::none_of(findings.cbegin(), findings.cend(), [](const Finding &finding) {
        return finding.level == Finding::Level::problem;
    });
}

} // namespace veldmark
