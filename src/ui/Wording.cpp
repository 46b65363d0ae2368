#include "ui/Wording.h"

#include <QGuiApplication>

namespace veldmark {

QString fromTheLeft(const QString &words)
{
    // The two characters enclose an isolate.
    return QGuiApplication::isRightToLeft() ? QChar(0x2066) + words + QChar(0x2069) : words;
}

QString shownName(BridgeChoice choice)
{
    return choice == BridgeChoice::custom ? Text::tr("Custom").translated() : displayName(choice);
}

bool isCommand(const QString &installHint)
{
    return installHint.contains(QLatin1String("install "))
        || installHint.contains(QLatin1String("pacman "));
}

QString shownHint(const QString &installHint)
{
    return isCommand(installHint) ? installHint : Text::tr("your package manager").translated();
}

} // namespace veldmark
