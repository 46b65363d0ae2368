#include "base/OneLine.h"

#include <QList>

namespace veldmark {

QString inOneLine(const QString &words, qsizetype limit)
{
    const QList<uint> letters = words.simplified().toUcs4();
    const bool isCut = letters.size() > limit;
    QString line;
    for (const uint letter : letters.first(isCut ? limit - 1 : letters.size()))
        line += QChar::isPrint(letter)
            ? QString::fromUcs4(reinterpret_cast<const char32_t *>(&letter), 1)
            : QStringLiteral("?");
    return isCut ? line + u'…' : line;
}

} // namespace veldmark
