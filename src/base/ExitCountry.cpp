#include "base/ExitCountry.h"

#include <algorithm>

namespace veldmark {

const std::vector<ExitCountry> &ExitCountry::all()
{
    static const std::vector<ExitCountry> countries = {
        {QString(), Text::tr("Any (recommended)")},
        {QStringLiteral("us"), Text::tr("United States")},
        {QStringLiteral("ca"), Text::tr("Canada")},
        {QStringLiteral("gb"), Text::tr("United Kingdom")},
        {QStringLiteral("de"), Text::tr("Germany")},
        {QStringLiteral("nl"), Text::tr("Netherlands")},
        {QStringLiteral("fr"), Text::tr("France")},
        {QStringLiteral("se"), Text::tr("Sweden")},
        {QStringLiteral("ch"), Text::tr("Switzerland")},
        {QStringLiteral("fi"), Text::tr("Finland")},
        {QStringLiteral("ro"), Text::tr("Romania")},
        {QStringLiteral("jp"), Text::tr("Japan")},
        {QStringLiteral("sg"), Text::tr("Singapore")},
    };
    return countries;
}

bool ExitCountry::isValid(const QString &code)
{
    return code.isEmpty()
        || (code.size() == 2 && std::all_of(code.cbegin(), code.cend(), [](QChar c) {
                return c >= u'a' && c <= u'z';
            }));
}

} // namespace veldmark
