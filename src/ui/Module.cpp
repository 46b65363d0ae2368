#include "ui/Module.h"

#include "ui/ApplicationChoices.h"
#include "ui/Symbols.h"

#include <QQmlEngine>

// Written by the build; a static library's registration would be left out of a program that does
// not name it.
extern void qml_register_types_Veldmark();

namespace veldmark {

void prepareEngine(QQmlEngine &engine)
{
    qml_register_types_Veldmark();
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.addImageProvider(QStringLiteral("symbol"), new SymbolProvider);
    engine.addImageProvider(QStringLiteral("application"), new ApplicationIcons);
}

QUrl moduleFile(const QString &file)
{
    return QUrl(QStringLiteral("qrc:/qt/qml/Veldmark/qml/") + file);
}

} // namespace veldmark
