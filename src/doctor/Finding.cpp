#include "doctor/Finding.h"

#include <algorithm>

namespace veldmark {

QString Finding::filled(const QString &form, const QStringList &words)
{
    QString text;
    for (qsizetype i = 0; i < form.size(); ++i) {
        const int number = form[i] == u'%' && i + 1 < form.size() ? form[i + 1].digitValue() : -1;
        if (number < 1 || number > words.size()) {
            text += form[i];
            continue;
        }
        text += words[number - 1];
        ++i;
    }
    return text;
}

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
    return std::none_of(findings.cbegin(), findings.cend(),
                        [](const Finding &finding) { return finding.level == Finding::Level::problem; });
}

} // namespace veldmark
