#pragma once

#include "app/FileChooser.h"
#include "app/WindowPlaces.h"
#include "ui/ApplicationChoices.h"
#include "ui/CircuitsModel.h"
#include "ui/LogModel.h"
#include "ui/OptionsModel.h"
#include "ui/PanelModel.h"
#include "ui/ReportModel.h"
#include "ui/SettingsModel.h"

#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <map>
#include <memory>

namespace veldmark {

// The program's windows by name: "main", "panel", "circuits", "log", "settings", "chooser",
// "report". A window is made when it is first wanted, and with the first one all that QML needs.
// All but "main" and "panel" are destroyed when closed, so that the program uses little memory in
// the tray. Their places are remembered. Main thread.
class Windows : public QObject {
    Q_OBJECT

public:
    // All must outlive the windows.
    Windows(Session &session, LogFeed &log, SettingsStore &settings);
    ~Windows() override;

    // Shows and raises the window. False when it cannot be made; failed() gives the reason.
    bool open(const QString &name);
    // Shows the panel at `anchor` (the tray's icon, screen coordinates), or hides it when shown.
    void togglePanel(const QRect &anchor);
    QQuickWindow *find(const QString &name) const;
    bool isAnyShown() const;
    // A window for one of the program's own questions; null when it cannot be made.
    std::unique_ptr<QQuickWindow> make(const QString &file, const QVariantMap &properties);

Q_SIGNALS:
    void quitWanted();
    void mainClosed();
    void failed(const QString &reason);

private Q_SLOTS:
    void onWindowWanted(const QString &name) { open(name); }
    void chooseTor();
    void chooseApplications();
    void chooseEntries();
    void chooseReportFile();

private:
    bool ensure(const QString &name);
    void onHidden(const QString &name);
    void keepPlace(const QString &name, const QQuickWindow *window);

    Session &m_session;
    PanelModel m_panel;
    OptionsModel m_options;
    SettingsModel m_settings;
    CircuitsModel m_circuits;
    LogModel m_log;
    ApplicationChoices m_choices;
    ReportModel m_report;
    WindowPlaces m_places;
    FileChooser m_torChooser;
    FileChooser m_entryChooser;
    FileChooser m_reportChooser;
    std::unique_ptr<QQmlApplicationEngine> m_engine;            // made with the first window
    std::map<QString, std::unique_ptr<QQuickWindow>> m_windows; // destroyed before the engine
};

} // namespace veldmark
