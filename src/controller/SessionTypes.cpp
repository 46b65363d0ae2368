#include "controller/SessionTypes.h"

#include <algorithm>

namespace veldmark {

const std::vector<ExitCountry> &ExitCountry::all()
{
    static const std::vector<ExitCountry> countries = {
        {QString(), QStringLiteral("Any (recommended)")},
        {QStringLiteral("us"), QStringLiteral("United States")},
        {QStringLiteral("ca"), QStringLiteral("Canada")},
        {QStringLiteral("gb"), QStringLiteral("United Kingdom")},
        {QStringLiteral("de"), QStringLiteral("Germany")},
        {QStringLiteral("nl"), QStringLiteral("Netherlands")},
        {QStringLiteral("fr"), QStringLiteral("France")},
        {QStringLiteral("se"), QStringLiteral("Sweden")},
        {QStringLiteral("ch"), QStringLiteral("Switzerland")},
        {QStringLiteral("fi"), QStringLiteral("Finland")},
        {QStringLiteral("ro"), QStringLiteral("Romania")},
        {QStringLiteral("jp"), QStringLiteral("Japan")},
        {QStringLiteral("sg"), QStringLiteral("Singapore")},
    };
    return countries;
}

bool ExitCountry::isValid(const QString &code)
{
    return code.isEmpty()
        || (code.size() == 2
            && std::all_of(code.cbegin(), code.cend(),
                           [](QChar c) { return c >= u'a' && c <= u'z'; }));
}

TorError TorError::bootstrapTimeout(const std::optional<QString> &lastError)
{
    QString text = QStringLiteral("Tor didn't finish connecting within 5 minutes.");
    if (lastError)
        text += QStringLiteral(" (%1)").arg(*lastError);
    return TorError(text);
}

} // namespace veldmark
