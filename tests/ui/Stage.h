#pragma once

#include "StandInSession.h"
#include "ui/ApplicationChoices.h"
#include "ui/CircuitsModel.h"
#include "ui/LogModel.h"
#include "ui/OptionsModel.h"
#include "ui/PanelModel.h"
#include "ui/ReportModel.h"
#include "ui/SettingsModel.h"

#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <memory>

namespace veldmark {

// The program's windows with a stand-in session, drawn offscreen by the software renderer. The font
// is fixed and nothing moves, so a picture is always the same.
class Stage {
public:
    Stage();

    // Loads the window of "NAME.qml" of the module in place of the previous one. Null when the file
    // does not load.
    QQuickWindow *open(const QString &file, QVariantMap properties = {});
    // Shows a window of the caller's own in its place. False when it is null.
    bool show(QQuickWindow *window);
    QQuickWindow *window() { return m_window.get(); }
    // `flags`: shows countries by their flags, which not every machine's fonts have, instead of
    // letters.
    void setDark(bool dark, bool flags = false);
    // The window's picture after all changes.
    QImage picture();
    QStringList warnings() const { return m_warnings; }

    QTemporaryDir folder;
    PlatformProfile profile;
    StandInSession session;
    StandInLog log;
    PanelModel panel;
    OptionsModel options;
    SettingsModel settings;
    CircuitsModel circuits;
    LogModel lines;
    ApplicationChoices choices;
    ReportModel report;
    QQmlApplicationEngine engine;

private:
    QStringList m_warnings;
    std::unique_ptr<QQuickWindow> m_window;
};

} // namespace veldmark
