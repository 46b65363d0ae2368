// The time to draw the circuits window, as one line of JSON: the graph alone and the whole window,
// at its default size with the software renderer. It is the processor time of the drawing thread,
// which other programs change less than wall time. Usage:
// GraphBench [REPETITIONS] (default 25). Build it with optimisation.
#include "DrawingTime.h"
#include "Scenes.h"
#include "Stage.h"

#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QQuickPaintedItem>
#include <QTextStream>

#include <algorithm>

using namespace veldmark;

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argc, argv);
    const int repetitions = argc > 1 ? std::max(1, QByteArray(argv[1]).toInt()) : 25;
    Stage stage;
    QJsonObject result{{QStringLiteral("bench"), QStringLiteral("graph")},
                       {QStringLiteral("repetitions"), repetitions}};
    for (const int count : {30, 300}) {
        Snapshot snapshot = Scenes::protectedSession();
        snapshot.circuits = Scenes::circuits(count);
        stage.session.show(snapshot);
        QQuickWindow *window = stage.open(
            QStringLiteral("circuits/CircuitsWindow.qml"),
            {{QStringLiteral("model"), QVariant::fromValue(&stage.circuits)}});
        auto *graph = window ? window->findChild<QQuickPaintedItem *>(QStringLiteral("graph"))
                             : nullptr;
        if (!graph)
            return 1;
        stage.picture();
        for (const bool dark : {false, true}) {
            stage.setDark(dark);
            stage.picture();
            QImage canvas(graph->size().toSize(), QImage::Format_ARGB32_Premultiplied);
            const double drawn = drawingTimes(repetitions,
                                              [&](int) { // everything, each time
                                                  QPainter painter(&canvas);
                                                  graph->paint(&painter);
                                              })
                                     .middle;
            // Tor's list has changed: everything from the session's change to the window's pixels.
            const double frame = drawingTimes(repetitions, [&](int i) {
                                     snapshot.circuits[0].sites = {
                                         QStringLiteral("site%1.example").arg(i)};
                                     stage.session.show(snapshot);
                                     window->grabWindow();
                                 }).middle;
            const QString key = QString::number(count)
                + (dark ? QStringLiteral("dark") : QStringLiteral("light"));
            result.insert(key + QStringLiteral("GraphMs"), drawn);
            result.insert(key + QStringLiteral("WindowMs"), frame);
        }
    }
    QTextStream(stdout) << QJsonDocument(result).toJson(QJsonDocument::Compact) << Qt::endl;
    return stage.warnings().isEmpty() ? 0 : 1;
}
