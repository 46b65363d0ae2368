#pragma once

#include "StagedWindows.h"

#include <QFile>
#include <QTest>

namespace veldmark {

// Readable texts of windows, compared with the reviewed ones.

// A line about a text or a control. Empty for a text inside a control, which the control's line
// has.
inline QString described(QQuickItem *item)
{
    const auto isControl = [](const QQuickItem *one) {
        return one->inherits("QQuickAbstractButton") || one->inherits("QQuickComboBox");
    };
    for (const QQuickItem *above = item->parentItem(); above; above = above->parentItem())
        if (isControl(above))
            return {};
    QString text = item->property("text").toString();
    if (!isControl(item)) {
        if (item->objectName() == QLatin1String("help sign")) // shows its text when it is pointed
                                                              // at
            return QStringLiteral("  ! %1\n").arg(text);
        const bool isText = item->inherits("QQuickText") || item->inherits("QQuickTextEdit");
        return isText && !text.isEmpty() ? QStringLiteral("  ") + text.replace(u'\n', u'/') + u'\n'
                                         : QString();
    }
    if (item->inherits("QQuickComboBox"))
        text = item->property("name").toString() + QStringLiteral(": ")
            + item->property("displayText").toString();
    if (item->property("checkable").toBool() || item->inherits("QQuickSwitch"))
        text += item->property("checked").toBool() ? QStringLiteral(": on")
                                                   : QStringLiteral(": off");
    return QStringLiteral("  (%1)%2\n")
        .arg(text, item->isEnabled() ? QString() : QStringLiteral(" disabled"));
}

// All texts and controls of the window on the stage.
inline QString described(Stage &stage)
{
    QString text;
    visit(stage.window()->contentItem(), [&text](QQuickItem *item) { text += described(item); });
    return text;
}

// Compares `now` with the file; a line in brackets is the name of the scene after it.
// VELDMARK_WRITE_GOLDEN=1 rewrites the file.
inline void expectGolden(const QString &path, const QString &now)
{
    QFile file(path);
    if (qEnvironmentVariableIsSet("VELDMARK_WRITE_GOLDEN")) {
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(now.toUtf8());
        return;
    }
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(path));
    const QStringList before = QString::fromUtf8(file.readAll()).split(u'\n');
    const QStringList lines = now.split(u'\n');
    QString scene;
    for (qsizetype i = 0; i < std::max(before.size(), lines.size()); ++i) {
        if (lines.value(i).startsWith(u'['))
            scene = lines[i];
        QVERIFY2(
            before.value(i) == lines.value(i),
            qPrintable(
                scene
                + QStringLiteral(": was \"%1\", is \"%2\"").arg(before.value(i), lines.value(i))));
    }
}

} // namespace veldmark
