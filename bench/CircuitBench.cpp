// Median times of reading Tor's circuit list and of drawing it, as one line of JSON.
// Usage: CircuitBench [REPETITIONS] (default 15). Build it with optimisation.
#include "MedianTime.h"
#include "circuits/CircuitGraph.h"
#include "circuits/CircuitParser.h"
#include "circuits/GraphLayout.h"

#include <QJsonDocument>
#include <QTextStream>

#include <functional>

using namespace veldmark;

namespace {

QString fingerprint(int relay)
{
    return QStringLiteral("%1%2")
        .arg(relay * 2654435761u, 20, 16, QLatin1Char('0'))
        .arg(relay, 20, 16, QLatin1Char('7'))
        .toUpper();
}

// A line as Tor 0.4.9 writes it, some 260 characters long.
QString circuitLine(int i)
{
    return QStringLiteral("%1 BUILT $%2~guard%3,$%4~middle%5,$%6~exit%7 "
                          "BUILD_FLAGS=NEED_CAPACITY,NEED_UPTIME PURPOSE=CONFLUX_LINKED "
                          "TIME_CREATED=2026-01-02T03:%8:05.678901 CONFLUX_ID=%9 CONFLUX_RTT=48211")
        .arg(QString::number(i), fingerprint(i % 4), QString::number(i % 4), fingerprint(i),
             QString::number(i), fingerprint(10000 + i % 300), QString::number(i % 300),
             QStringLiteral("%1").arg(i % 60, 2, 10, QLatin1Char('0')),
             QStringLiteral("%1").arg(i / 2, 32, 16, QLatin1Char('A')));
}

} // namespace

int main(int argc, char **argv)
{
    const int repetitions = argc > 1 ? std::max(1, QByteArray(argv[1]).toInt()) : 15;

    QStringList lines;
    for (int i = 0; i < 10000; ++i)
        lines.append(circuitLine(i));
    size_t parsed = 0;
    const double parse = medianMilliseconds(repetitions, [&] {
        std::vector<CircuitInfo> circuits;
        for (const QString &line : lines) {
            if (auto circuit = CircuitParser::circuit(line))
                circuits.push_back(std::move(*circuit));
        }
        parsed = circuits.size();
    });

    std::vector<CircuitInfo> circuits;
    for (int i = 0; i < 1000; ++i) {
        circuits.push_back(*CircuitParser::circuit(lines[i]));
        for (int site = 0; site < i % 6; ++site)
            circuits.back().sites.append(QStringLiteral("host%1.example").arg(i + site));
    }
    size_t placed = 0;
    const double draw = medianMilliseconds(repetitions, [&] {
        const CircuitGraph graph = CircuitGraph::build(circuits);
        placed = static_cast<size_t>(GraphLayout(graph, {1200, 800}).positions.size());
    });

    const QJsonObject result{
        {QStringLiteral("bench"), QStringLiteral("circuits")},
        {QStringLiteral("repetitions"), repetitions},
        {QStringLiteral("lines"), static_cast<qint64>(parsed)},
        {QStringLiteral("parseMedianMs"), parse},
        {QStringLiteral("graphCircuits"), static_cast<qint64>(circuits.size())},
        {QStringLiteral("graphNodes"), static_cast<qint64>(placed)},
        {QStringLiteral("graphMedianMs"), draw},
    };
    QTextStream(stdout) << QJsonDocument(result).toJson(QJsonDocument::Compact) << Qt::endl;
    return parsed == 10000 ? 0 : 1;
}
