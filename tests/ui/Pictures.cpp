// Draws every state of every window into a folder, for ./build.sh demo and docs/screenshots.
#include "Scenes.h"
#include "Stage.h"
#include "ui/ColorScheme.h"
#include "ui/Symbols.h"

#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QPainter>
#include <QQuickItem>
#include <QTextStream>
#include <QTranslator>

#include <cmath>

using namespace veldmark;

namespace {

bool failed = false;

void save(Stage &stage, const QDir &folder, const QString &name)
{
    if (!stage.window()) {
        failed = true;
        return;
    }
    if (!stage.picture().save(folder.filePath(name + QStringLiteral(".png"))))
        failed = true;
}

void drawPanel(Stage &stage, const QDir &folder, const QString &suffix, int width, int height)
{
    for (const Scenes::Scene &scene : Scenes::panel()) {
        stage.panel.traffic()->clear();
        stage.session.show(scene.snapshot);
        if (scene.snapshot.phase == ConnectionPhase::connected) {
            const auto start = TrafficHistory::TimePoint() + std::chrono::hours(1);
            stage.panel.traffic()->clear();
            quint64 read = 0;
            for (int i = 0; i <= 60; ++i) {
                // The traffic of some pages, and of a larger download towards the end.
                const double pages = std::pow(std::sin(i * 0.41) * std::sin(i * 0.17 + 1), 4);
                const double file = i > 38 ? 1 - std::exp((38 - i) / 4.0) : 0;
                read += static_cast<quint64>(20'000 + 700'000 * pages
                                             + 500'000 * file * (0.85 + 0.15 * std::sin(i * 2.3)));
                stage.panel.traffic()->add(read, read / 6, start + std::chrono::seconds(2 * i));
            }
        }
        QQuickWindow *window = stage.open(
            QStringLiteral("main/MainWindow.qml"),
            {{QStringLiteral("panelModel"), QVariant::fromValue(&stage.panel)},
             {QStringLiteral("optionsModel"), QVariant::fromValue(&stage.options)}});
        if (!window) {
            failed = true;
            return;
        }
        window->setWidth(width);
        if (height > 0)
            window->setHeight(height);
        save(stage, folder, QStringLiteral("panel-%1%2").arg(scene.name, suffix));
    }
}

// The dialogues over the panel.
void drawSheets(Stage &stage, const QDir &folder, const QString &suffix)
{
    Snapshot s = Scenes::protectedSession();
    s.choices.customBridges = QStringLiteral(
        "obfs4 192.0.2.7:443 0123456789ABCDEF0123456789ABCDEF01234567 cert=abc iat-mode=0\n"
        "a line that is none\n");
    for (const bool full : {false, true}) {
        s.choices.bypassApps = full
            ? QStringList{QStringLiteral("/usr/share/applications/org.example.Game.desktop"),
                          QStringLiteral(
                              "/usr/share/applications/org.example.VideoConference.desktop")}
            : QStringList();
        s.findings = full ? Scenes::findings() : Findings();
        stage.session.show(s);
        for (const char *name : {"applications", "bridges", "doctor"}) {
            QQuickWindow *window = stage.open(
                QStringLiteral("main/MainWindow.qml"),
                {{QStringLiteral("panelModel"), QVariant::fromValue(&stage.panel)},
                 {QStringLiteral("optionsModel"), QVariant::fromValue(&stage.options)}});
            QObject *sheet = window ? window->findChild<QObject *>(QLatin1String(name)) : nullptr;
            failed |= !sheet || !QMetaObject::invokeMethod(sheet, "open");
            if (sheet && (full || name[0] == 'a'))
                save(stage, folder,
                     QStringLiteral("sheet-%1%2%3")
                         .arg(QLatin1String(name), full ? QString() : QStringLiteral("-empty"),
                              suffix));
        }
    }
}

// Large windows on large screens, and a circuit under the pointer.
void drawOthers(Stage &stage, const QDir &folder, const QString &suffix)
{
    Snapshot session = Scenes::protectedSession();
    session.circuits = Scenes::circuits(30);
    stage.session.show(session);
    QQuickWindow *window = stage.open(
        QStringLiteral("circuits/CircuitsWindow.qml"),
        {{QStringLiteral("model"), QVariant::fromValue(&stage.circuits)}});
    if (!window)
        return;
    save(stage, folder, QStringLiteral("circuits-30") + suffix);
    auto *graph = window->findChild<QQuickItem *>(QStringLiteral("graph"));
    const QPointF at = graph->mapToScene(QPointF(graph->width() * 0.5, graph->height() * 0.58));
    QHoverEvent hover(QEvent::HoverMove, graph->mapFromScene(at), at, at);
    QCoreApplication::sendEvent(graph, &hover);
    save(stage, folder, QStringLiteral("circuits-30-hovered") + suffix);
    window->resize(3840, 2000);
    save(stage, folder, QStringLiteral("circuits-largest") + suffix);
}

void drawWindows(Stage &stage, const QDir &folder, const QString &suffix)
{
    const QVariantMap circuits{{QStringLiteral("model"), QVariant::fromValue(&stage.circuits)}};
    const QVariantMap log{{QStringLiteral("model"), QVariant::fromValue(&stage.lines)}};
    Snapshot session = Scenes::protectedSession();
    Snapshot idle;

    stage.session.show(session);
    stage.open(QStringLiteral("circuits/CircuitsWindow.qml"), circuits);
    save(stage, folder, QStringLiteral("circuits") + suffix);
    stage.circuits.follow(QStringLiteral("13"));
    save(stage, folder, QStringLiteral("circuits-followed") + suffix);
    if (!stage.window())
        return;
    stage.window()->resize(640, 420);
    save(stage, folder, QStringLiteral("circuits-smallest") + suffix);
    stage.circuits.follow({});
    stage.window()->resize(1000, 640);
    session.circuits = Scenes::circuits(30);
    stage.session.show(session);
    stage.circuits.follow(QStringLiteral("15"));
    save(stage, folder, QStringLiteral("circuits-30-followed") + suffix);
    stage.circuits.follow({});
    session.circuits.clear();
    session.circuitError = QStringLiteral("Tor closed the control connection.");
    stage.session.show(session);
    save(stage, folder, QStringLiteral("circuits-reading") + suffix);
    stage.session.show(idle);
    save(stage, folder, QStringLiteral("circuits-disconnected") + suffix);

    stage.log.show(LogFeed::State::lines, Scenes::log(40));
    stage.open(QStringLiteral("log/LogWindow.qml"), log);
    save(stage, folder, QStringLiteral("log") + suffix);
    stage.window()->resize(640, 420);
    save(stage, folder, QStringLiteral("log-smallest") + suffix);
    stage.window()->resize(900, 540);
    stage.lines.setSearch(QStringLiteral("nowhere"));
    save(stage, folder, QStringLiteral("log-nothing-matches") + suffix);
    stage.lines.setSearch({});
    stage.log.show(LogFeed::State::empty);
    save(stage, folder, QStringLiteral("log-empty") + suffix);
    stage.log.show(LogFeed::State::unreadable);
    save(stage, folder, QStringLiteral("log-unreadable") + suffix);

    for (const bool saved : {false, true}) {
        Snapshot s = idle;
        s.report = Scenes::report();
        if (saved)
            s.reportSaved = QStringLiteral("/home/user/veldmark-report.txt");
        stage.session.show(s);
        stage.open(QStringLiteral("report/ReportWindow.qml"),
                   {{QStringLiteral("model"), QVariant::fromValue(&stage.report)}});
        save(stage, folder,
             (saved ? QStringLiteral("report-saved") : QStringLiteral("report")) + suffix);
    }
    stage.session.show(idle);
    stage.open(QStringLiteral("report/ReportWindow.qml"),
               {{QStringLiteral("model"), QVariant::fromValue(&stage.report)}});
    save(stage, folder, QStringLiteral("report-looking") + suffix);

    for (const bool rich : {false, true}) {
        Snapshot s = idle;
        if (rich) {
            s = Scenes::protectedSession();
            s.passwordlessInstalled = true;
            s.transports.lyrebird = QStringLiteral("/usr/bin/lyrebird");
            s.transports.source = QStringLiteral("Tor Browser");
            s.terminalInstalled = s.choices.terminalMode = true;
        } else {
            s.startupError = QStringLiteral(
                "The rule for sudo was refused: visudo reported a syntax error.");
        }
        stage.session.show(s);
        for (int pane = 0; pane < 6; ++pane) {
            QQuickWindow *window = stage.open(
                QStringLiteral("settings/SettingsWindow.qml"),
                {{QStringLiteral("model"), QVariant::fromValue(&stage.settings)},
                 {QStringLiteral("pane"), pane}});
            if (window)
                save(stage, folder,
                     QStringLiteral("settings-%1%2%3")
                         .arg(pane + 1)
                         .arg(rich ? QStringLiteral("-installed") : QString(), suffix));
            else
                failed = true;
        }
    }
    stage.open(QStringLiteral("main/QuitDialog.qml"),
               {{QStringLiteral("strict"), true}, {QStringLiteral("busy"), false}});
    save(stage, folder, QStringLiteral("quit") + suffix);
}

// The tray's icons on a light and a dark panel, in the sizes that panels use, and the smallest one
// enlarged eight times.
void drawTray(const QDir &folder)
{
    const QStringList symbols{
        QStringLiteral("shield.slash"), QStringLiteral("shield.lefthalf.filled"),
        QStringLiteral("lock.shield.fill"), QStringLiteral("exclamationmark.shield")};
    QImage sheet(640, 420, QImage::Format_RGB32);
    QPainter painter(&sheet);
    for (const bool dark : {false, true}) {
        const QColor ink = dark ? QColor(0xf2, 0xf2, 0xf7) : QColor(0x1a, 0x1a, 0x22);
        const int top = dark ? 210 : 0;
        painter.fillRect(0, top, 640, 210,
                         dark ? QColor(0x22, 0x22, 0x26) : QColor(0xee, 0xee, 0xee));
        for (int i = 0; i < symbols.size(); ++i) {
            const QString &symbol = symbols[i];
            int x = 16 + i * 156;
            for (const int pixels : {16, 22, 24, 32}) {
                painter.drawImage(x, top + 16, Symbols::image(symbol, pixels, ink));
                x += pixels + 10;
            }
            painter.drawImage(16 + i * 156, top + 66,
                              Symbols::image(symbol, 16, ink).scaled(128, 128));
        }
    }
    painter.end();
    if (!sheet.save(folder.filePath(QStringLiteral("tray.png"))))
        failed = true;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argc, argv);
    QTextStream err(stderr);
    const QStringList arguments = application.arguments();
    if (arguments.size() < 2) {
        err << "usage: veldmark-pictures FOLDER [only: panel | windows] [TRANSLATION.qm]\n";
        return 2;
    }
    application.setFont(QFont(QStringLiteral("Noto Sans")));
    QLocale::setDefault(QLocale(QLocale::English));
    const QDir folder(arguments.at(1));
    folder.mkpath(QStringLiteral("."));
    const QString only = arguments.value(2);
    QTranslator translator;
    if (arguments.size() > 3 && translator.load(arguments.at(3))) {
        application.installTranslator(&translator);
        application.setLayoutDirection(QLocale(translator.language()).textDirection());
    }

    Stage stage;
    const bool flags = ColorScheme().flagsDrawn();
    for (const bool dark : {false, true}) {
        const QString suffix = dark ? QStringLiteral("-dark") : QStringLiteral("-light");
        stage.setDark(dark, flags);
        if (only != QLatin1String("windows"))
            drawPanel(stage, folder, suffix, 400, 0);
        if (only != QLatin1String("panel")) {
            drawWindows(stage, folder, suffix);
            drawSheets(stage, folder, suffix);
            drawOthers(stage, folder, suffix);
        }
    }
    if (only.isEmpty())
        drawTray(folder);
    for (const QString &warning : stage.warnings())
        err << warning << '\n';
    return failed || !stage.warnings().isEmpty() ? 1 : 0;
}
