// The time to draw the log window with 3,000 lines, as one line of JSON: a new line while
// following, a new list, and a scroll by a few lines. It is the processor time of the drawing
// thread. Usage: LogWindowBench [REPETITIONS] (default 25). Build it with optimisation.
#include "DrawingTime.h"
#include "Scenes.h"
#include "Stage.h"

#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QQuickItem>
#include <QTextStream>

#include <algorithm>

using namespace veldmark;

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argc, argv);
    const int repetitions = argc > 1 ? std::max(1, QByteArray(argv[1]).toInt()) : 25;
    constexpr int lines = 3000;
    Stage stage;
    const QList<TorLogLine> all = Scenes::log(2 * lines + repetitions);
    const auto some = [&all](int first) { return all.mid(first, lines); };
    stage.log.show(LogFeed::State::lines, some(0));
    QQuickWindow *window = stage.open(
        QStringLiteral("log/LogWindow.qml"),
        {{QStringLiteral("model"), QVariant::fromValue(&stage.lines)}});
    auto *list = window ? window->findChild<QQuickItem *>(QStringLiteral("lines")) : nullptr;
    if (!list)
        return 1;
    stage.picture();

    // A frame: the event loop handles the change, then the window is drawn.
    const auto draw = [&] {
        QCoreApplication::processEvents();
        window->grabWindow();
    };
    const auto atEnd = [list] { return list->property("atYEnd").toBool(); };
    bool followed = true;
    // Rows whose heights are known only once they are drawn may take a second frame.
    const auto drawEnd = [&] {
        for (int frame = 0; frame < 3; ++frame) {
            draw();
            QCoreApplication::processEvents();
            if (atEnd())
                return;
        }
        followed = false;
    };
    const DrawingTimes added = drawingTimes(repetitions, [&](int i) {
        stage.log.show(LogFeed::State::lines, some(1 + i));
        drawEnd();
    });
    const DrawingTimes replaced = drawingTimes(repetitions, [&](int i) {
        stage.log.show(LogFeed::State::lines, some(i % 2 == 0 ? 0 : lines));
        drawEnd();
    });
    stage.picture();
    const double before = list->property("contentY").toDouble();
    const DrawingTimes scrolled = drawingTimes(repetitions, [&](int) {
        QMetaObject::invokeMethod(list, "scrollBy", Q_ARG(double, -60.0));
        draw();
    });
    const bool moved = list->property("contentY").toDouble() < before - 30.0 * repetitions;
    if (!followed || !moved) {
        QTextStream(stderr) << "LogWindowBench: the list did not do what was to be measured\n";
        return 1;
    }
    const QJsonObject result{
        {QStringLiteral("bench"), QStringLiteral("log window")},
        {QStringLiteral("repetitions"), repetitions},
        {QStringLiteral("addedMs"), added.middle},
        {QStringLiteral("addedMostMs"), added.most},
        {QStringLiteral("replacedMs"), replaced.middle},
        {QStringLiteral("replacedMostMs"), replaced.most},
        {QStringLiteral("scrolledMs"), scrolled.middle},
        {QStringLiteral("scrolledMostMs"), scrolled.most},
    };
    QTextStream(stdout) << QJsonDocument(result).toJson(QJsonDocument::Compact) << Qt::endl;
    return stage.warnings().isEmpty() ? 0 : 1;
}
