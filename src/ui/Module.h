#pragma once

#include <QString>
#include <QUrl>

class QQmlEngine;

namespace veldmark {

// Teaches an engine the program's QML module, its symbols included.
void prepareEngine(QQmlEngine &engine);
// Where a file of the module lives: "main/MainWindow.qml".
QUrl moduleFile(const QString &file);

} // namespace veldmark
