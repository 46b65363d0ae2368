// Shows the program's windows with a stand-in session, for tests in other processes. Each input
// line names the window to show instead of the previous one; the answer is "shown" or "failed".
// Ends with its input.

#include "Scenes.h"
#include "Stage.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QSocketNotifier>
#include <QTextStream>

using namespace veldmark;

namespace {

// Controls with faults that the test's walk must find.
constexpr const char *faulty = R"(
import QtQuick
import QtQuick.Window
import QtQuick.Templates as T
Window {
    title: "Faulty"; width: 200; height: 100
    T.Button { width: 50; height: 20 }
    T.Button { y: 30; width: 50; height: 20; text: "Good" }
})";

QVariantMap propertiesOf(Stage &stage, const QString &name)
{
    const auto model = [](auto *m) {
        return QVariantMap{{QStringLiteral("model"), QVariant::fromValue(m)}};
    };
    if (name == QLatin1String("circuits/CircuitsWindow.qml"))
        return model(&stage.circuits);
    if (name == QLatin1String("log/LogWindow.qml"))
        return model(&stage.lines);
    if (name == QLatin1String("chooser/ChooserWindow.qml"))
        return model(&stage.choices);
    if (name == QLatin1String("settings/SettingsWindow.qml"))
        return model(&stage.settings);
    if (name == QLatin1String("report/ReportWindow.qml"))
        return model(&stage.report);
    if (name == QLatin1String("main/QuitDialog.qml"))
        return {{QStringLiteral("strict"), true}, {QStringLiteral("busy"), false}};
    return {{QStringLiteral("panelModel"), QVariant::fromValue(&stage.panel)},
            {QStringLiteral("optionsModel"), QVariant::fromValue(&stage.options)}};
}

void setUp(Stage &stage, bool connected)
{
    Snapshot snapshot = connected ? Scenes::protectedSession() : Snapshot();
    snapshot.torPath = QStringLiteral("/usr/bin/tor");
    snapshot.openAtLogin = true;
    snapshot.report = Scenes::report();
    snapshot.choices.exitCountry = QStringLiteral("de");
    snapshot.choices.bypassApps = {QStringLiteral("/usr/share/applications/games.desktop")};
    snapshot.choices.bridgeChoice = BridgeChoice::custom;
    snapshot.choices.allowLocalNetwork = false;
    if (connected) {
        snapshot.circuits = Scenes::circuits(6);
        snapshot.dns = DNSStatus::leak({QStringLiteral("192.168.1.1 on eth0")});
        snapshot.errorMessage = QStringLiteral("Tor closed the control connection.");
        snapshot.markerPresent = true;
    }
    stage.session.show(snapshot);
    stage.log.show(LogFeed::State::lines, Scenes::log(20));
}

// "FILE [SETTING=VALUE]…" of the window; "disconnected" is a session that has not begun.
bool show(Stage &stage, const QString &line)
{
    QStringList words = line.split(u' ', Qt::SkipEmptyParts);
    const QString file = words.takeFirst();
    if (file == QLatin1String("faulty")) {
        QQmlComponent component(&stage.engine);
        component.setData(faulty, QUrl());
        return stage.show(qobject_cast<QQuickWindow *>(component.create()));
    }
    setUp(stage, !words.removeOne(QStringLiteral("disconnected")));
    QVariantMap properties = propertiesOf(stage, file);
    for (const QString &word : words)
        properties.insert(word.section(u'=', 0, 0), word.section(u'=', 1).toInt());
    return stage.open(file, properties);
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    Stage stage;
    QTextStream input(stdin);
    QTextStream output(stdout);
    QSocketNotifier notifier(0, QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &application, [&] {
        const QString line = input.readLine();
        if (line.isNull())
            QCoreApplication::quit();
        else
            output << (show(stage, line) ? "shown" : "failed") << Qt::endl;
    });
    return QGuiApplication::exec();
}
