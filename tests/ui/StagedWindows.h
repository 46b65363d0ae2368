#pragma once

#include "Scenes.h"
#include "Stage.h"

#include <QAccessible>
#include <QFont>
#include <QGuiApplication>
#include <QLocale>
#include <QQuickItem>

#include <functional>
#include <vector>

namespace veldmark {

// Shared by the tests of the windows: every window on a stage, and the walk through its visible
// items.

struct Shown {
    const char *name;
    const char *file;
    QVariantMap properties;
};

inline std::vector<Shown> windows(Stage &stage)
{
    const auto model = [](auto *m) {
        return QVariantMap{{QStringLiteral("model"), QVariant::fromValue(m)}};
    };
    const QVariantMap panel{{QStringLiteral("panelModel"), QVariant::fromValue(&stage.panel)},
                            {QStringLiteral("optionsModel"), QVariant::fromValue(&stage.options)}};
    std::vector<Shown> list{{"main", "main/MainWindow.qml", panel},
                            {"panel", "main/PanelPopup.qml", panel},
                            {"circuits", "circuits/CircuitsWindow.qml", model(&stage.circuits)},
                            {"log", "log/LogWindow.qml", model(&stage.lines)},
                            {"report", "report/ReportWindow.qml", model(&stage.report)},
                            {"quit",
                             "main/QuitDialog.qml",
                             {{QStringLiteral("strict"), true}, {QStringLiteral("busy"), false}}}};
    for (int pane = 0; pane < 6; ++pane) {
        QVariantMap settings = model(&stage.settings);
        settings.insert(QStringLiteral("pane"), pane);
        list.push_back({"settings", "settings/SettingsWindow.qml", settings});
    }
    return list;
}

// A session with many texts.
inline void prepare(Stage &stage)
{
    Snapshot snapshot = Scenes::protectedSession();
    snapshot.dns = DNSStatus::leak({QStringLiteral("192.168.1.1 on eth0")});
    snapshot.errorMessage = QStringLiteral("Tor closed the control connection.");
    snapshot.report = Scenes::report();
    stage.session.show(snapshot);
    stage.log.show(LogFeed::State::lines, Scenes::log(20));
}

inline void visit(QQuickItem *item, const std::function<void(QQuickItem *)> &look)
{
    if (!item->isVisible() || item->opacity() <= 0)
        return;
    look(item);
    for (QQuickItem *child : item->childItems())
        visit(child, look);
}

// Before the first window: pictures and sizes are the same everywhere.
inline void settleAppearance()
{
    QLocale::setDefault(QLocale(QLocale::English));
    QGuiApplication::setFont(QFont(QStringLiteral("Noto Sans")));
    QAccessible::setActive(true);
}

} // namespace veldmark
