#pragma once

#include "StagedWindows.h"

#include <functional>

namespace veldmark {

// Every window except the panel, in every state that changes its texts or controls.
struct WindowScene {
    QString name; // the window's name, and after a slash the state's
    std::function<QQuickWindow *(Stage &)> open;
};

inline void openSheet(QQuickWindow *window, const char *name)
{
    if (auto *sheet = window ? window->findChild<QObject *>(QLatin1String(name)) : nullptr)
        QMetaObject::invokeMethod(sheet, "open");
}

inline QVariantMap panelProperties(Stage &stage)
{
    return {{QStringLiteral("panelModel"), QVariant::fromValue(&stage.panel)},
            {QStringLiteral("optionsModel"), QVariant::fromValue(&stage.options)}};
}

template <typename Model> QVariantMap modelProperty(Model *model)
{
    return {{QStringLiteral("model"), QVariant::fromValue(model)}};
}

inline Snapshot idleSession()
{
    Snapshot s;
    s.torPath = QStringLiteral("/usr/bin/tor");
    s.openAtLogin = false;
    return s;
}

inline void addCircuitScenes(std::vector<WindowScene> &scenes)
{
    const auto circuits = [&scenes](const char *name, const Snapshot &session,
                                    const QString &followed = {}) {
        scenes.push_back({QLatin1String(name), [session, followed](Stage &stage) {
                              stage.session.show(session);
                              stage.circuits.follow(followed);
                              return stage.open(QStringLiteral("circuits/CircuitsWindow.qml"),
                                                modelProperty(&stage.circuits));
                          }});
    };
    Snapshot session = Scenes::protectedSession();
    circuits("circuits", session);
    circuits("circuits/followed", session, QStringLiteral("13"));
    circuits("circuits/linked leg", session, QStringLiteral("12"));
    session.circuits[2].onionService = QStringLiteral("hidden.onion");
    circuits("circuits/onion service", session, QStringLiteral("13"));
    session = Scenes::protectedSession();
    session.circuits[2].askers = {
        {QStringLiteral("www.example.org"), {QStringLiteral("letters")}},
        {QStringLiteral("mail.example.com"), {QStringLiteral("letters"), QStringLiteral("games")}},
        {QStringLiteral("forum.example.org"), {QStringLiteral("games")}}};
    circuits("circuits/applications", session, QStringLiteral("13"));
    session = Scenes::protectedSession();
    session.circuitError = QStringLiteral("Tor closed the control connection.");
    circuits("circuits/not read again", session);
    session.circuitError.reset();
    session.isOptimizing = true;
    session.optimizeStatus = QStringLiteral("Testing speed (1 of 3)…");
    circuits("circuits/optimizing", session);
    session = Scenes::protectedSession();
    session.circuits.clear();
    session.circuitError = QStringLiteral("Tor closed the control connection.");
    circuits("circuits/reading", session);
    circuits("circuits/disconnected", idleSession());
}

inline void addLogScenes(std::vector<WindowScene> &scenes)
{
    const auto log = [&scenes](const char *name, LogFeed::State state, int count,
                               const std::function<void(LogModel &)> &then) {
        scenes.push_back({QLatin1String(name), [=](Stage &stage) {
                              stage.log.show(state, Scenes::log(count));
                              QQuickWindow *window = stage.open(QStringLiteral("log/LogWindow.qml"),
                                                                modelProperty(&stage.lines));
                              then(stage.lines);
                              return window;
                          }});
    };
    log("log", LogFeed::State::lines, 7, [](LogModel &) {});
    log("log/problems", LogFeed::State::lines, 7,
        [](LogModel &model) { model.setProblemsOnly(true); });
    log("log/nothing matches", LogFeed::State::lines, 7,
        [](LogModel &model) { model.setSearch(QStringLiteral("nowhere")); });
    log("log/no problems", LogFeed::State::lines, 1,
        [](LogModel &model) { model.setProblemsOnly(true); });
    log("log/empty", LogFeed::State::empty, 0, [](LogModel &) {});
    log("log/unreadable", LogFeed::State::unreadable, 0, [](LogModel &) {});
    scenes.push_back({QStringLiteral("log/no files"), [](Stage &stage) {
                          stage.profile.runDirectory = QStringLiteral("/nowhere");
                          QQuickWindow *window = stage.open(QStringLiteral("log/LogWindow.qml"),
                                                            modelProperty(&stage.lines));
                          stage.lines.reveal();
                          return window;
                      }});
}

inline void addSettingsScenes(std::vector<WindowScene> &scenes)
{
    Snapshot bare = idleSession();
    bare.torPath.reset();
    bare.openAtLogin.reset();
    Snapshot failed = idleSession();
    failed.startupError = QStringLiteral(
        "Couldn't set up passwordless mode: visudo reported a syntax error.");
    failed.terminalError = QStringLiteral(
        "ssh doesn't go through Tor yet: it needs a netcat that speaks SOCKS. Install one with: "
        "sudo apt install netcat-openbsd");
    failed.choices.terminalMode = failed.terminalInstalled = true;
    failed.choices.customTorPath = QStringLiteral("/opt/tor/tor");
    failed.torPath.reset();
    failed.transportDownload = QStringLiteral(
        "Couldn't download bridge programs: Download of the list failed (HTTP 503).");
    Snapshot full = Scenes::protectedSession();
    full.passwordlessInstalled = true;
    full.choices.customTorPath = QStringLiteral("/usr/bin/tor");
    full.transports.lyrebird = QStringLiteral("/usr/bin/lyrebird");
    full.transports.source = QStringLiteral("Tor Browser");
    full.choices.terminalMode = full.terminalInstalled = full.terminalForSsh = true;
    const std::array<std::pair<const char *, Snapshot>, 3> states{
        {{"bare", bare}, {"with errors", failed}, {"full", full}}};
    static constexpr std::array panes{"general", "tor", "bridges", "terminal", "recovery", "about"};
    scenes.push_back({QStringLiteral("settings bridges/bundle, downloading"), [full](Stage &stage) {
                          Snapshot session = full;
                          session.transportDownload = Text::tr("Starting…");
                          session.bundleVersion = QStringLiteral("14.0.4");
                          stage.session.show(session);
                          QVariantMap properties = modelProperty(&stage.settings);
                          properties.insert(QStringLiteral("pane"), 2);
                          return stage.open(QStringLiteral("settings/SettingsWindow.qml"),
                                            properties);
                      }});
    for (int pane = 0; pane < static_cast<int>(panes.size()); ++pane) {
        for (const auto &[state, snapshot] : states) {
            scenes.push_back(
                {QStringLiteral("settings %1/%2")
                     .arg(QLatin1String(panes.at(static_cast<size_t>(pane))), QLatin1String(state)),
                 [pane, session = snapshot](Stage &stage) {
                     stage.session.show(session);
                     QVariantMap properties = modelProperty(&stage.settings);
                     properties.insert(QStringLiteral("pane"), pane);
                     return stage.open(QStringLiteral("settings/SettingsWindow.qml"), properties);
                 }});
        }
    }
}

inline void addDialogScenes(std::vector<WindowScene> &scenes)
{
    for (const bool strict : {true, false}) {
        for (const bool busy : {false, true}) {
            scenes.push_back({QStringLiteral("quit/%1%2")
                                  .arg(strict ? QStringLiteral("strict") : QStringLiteral("proxy"),
                                       busy ? QStringLiteral(", busy") : QString()),
                              [strict, busy](Stage &stage) {
                                  return stage.open(QStringLiteral("main/QuitDialog.qml"),
                                                    {{QStringLiteral("strict"), strict},
                                                     {QStringLiteral("busy"), busy}});
                              }});
        }
    }
    const auto sheet = [&scenes](const char *name, const char *which, const Snapshot &session,
                                 const QString &failure = {}) {
        scenes.push_back({QLatin1String(name), [=](Stage &stage) {
                              stage.session.show(session);
                              QQuickWindow *window = stage.open(
                                  QStringLiteral("main/MainWindow.qml"), panelProperties(stage));
                              openSheet(window, which);
                              if (!failure.isEmpty())
                                  Q_EMIT stage.session.launchFailed(failure);
                              return window;
                          }});
    };
    sheet("applications/empty", "applications", idleSession());
    Snapshot chosen = Scenes::protectedSession();
    chosen.choices.bypassApps = {QStringLiteral("/usr/share/applications/games.desktop")};
    sheet("applications", "applications", chosen);
    sheet("applications/failed", "applications", chosen,
          QStringLiteral("Couldn't open Games without Tor: It has no program."));
    Snapshot apart = idleSession();
    apart.choices.bypassApps = chosen.choices.bypassApps;
    sheet("applications/disconnected", "applications", apart);
    Snapshot bridges = idleSession();
    bridges.choices.bridgeChoice = BridgeChoice::custom;
    bridges.choices.customBridges = QStringLiteral("192.0.2.1:443\na line that is none\n");
    sheet("bridges", "bridges", bridges);
    Snapshot failed = idleSession();
    failed.findings = Scenes::findings();
    sheet("doctor", "doctor", failed);
    failed.isExamining = true;
    failed.findings.clear();
    sheet("doctor/looking", "doctor", failed);

    const auto report = [&scenes](const char *name, const Snapshot &session) {
        scenes.push_back({QLatin1String(name), [session](Stage &stage) {
                              stage.session.show(session);
                              return stage.open(QStringLiteral("report/ReportWindow.qml"),
                                                modelProperty(&stage.report));
                          }});
    };
    Snapshot told = idleSession();
    told.isReporting = true;
    report("report/looking", told);
    told.isReporting = false;
    told.report = Scenes::report();
    report("report", told);
    told.reportSaved = QStringLiteral("/home/user/veldmark-report.txt");
    report("report/saved", told);
    told.reportSaved.reset();
    told.reportProblem = QStringLiteral(
        "The report can't be written to /media/stick/report.txt: No space left on device");
    report("report/failed", told);

    scenes.push_back({QStringLiteral("chooser"), [](Stage &stage) {
                          stage.session.show(idleSession());
                          return stage.open(QStringLiteral("chooser/ChooserWindow.qml"),
                                            modelProperty(&stage.choices));
                      }});
    scenes.push_back({QStringLiteral("chooser/nothing"), [](Stage &stage) {
                          stage.session.show(idleSession());
                          QQuickWindow *window = stage.open(
                              QStringLiteral("chooser/ChooserWindow.qml"),
                              modelProperty(&stage.choices));
                          stage.picture(); // a new window clears the search of the previous one
                          stage.choices.setSearch(QStringLiteral("zzz"));
                          return window;
                      }});
}

inline std::vector<WindowScene> windowScenes()
{
    std::vector<WindowScene> scenes;
    addCircuitScenes(scenes);
    addLogScenes(scenes);
    addSettingsScenes(scenes);
    addDialogScenes(scenes);
    return scenes;
}

} // namespace veldmark
