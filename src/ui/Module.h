#pragma once

#include <QString>
#include <QUrl>

class QQmlEngine;

namespace veldmark {

// Registers the program's QML module and its symbols with an engine.
void prepareEngine(QQmlEngine &engine);
// The URL of a file of the module, for example "main/MainWindow.qml".
QUrl moduleFile(const QString &file);

} // namespace veldmark
