// The time of one search for bridge programs in the system below FOLDER, as one line of JSON.
// Usage: DiscoveryBench FOLDER. Build it with optimisation.
#include "bridges/PluggableTransports.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <chrono>

using namespace veldmark;

int main(int argc, char **argv)
{
    if (argc != 2)
        return 2;
    const PlatformProfile profile = PlatformProfile::linux(
        Places::below(QFile::decodeName(argv[1])));
    const auto start = std::chrono::steady_clock::now();
    const PluggableTransports found = PluggableTransports::locate(profile);
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    const QJsonObject result{{QStringLiteral("milliseconds"), took.count()},
                             {QStringLiteral("lyrebird"), found.lyrebird.value_or(QString())},
                             {QStringLiteral("kinds"), found.builtin.size()}};
    QTextStream(stdout) << QJsonDocument(result).toJson(QJsonDocument::Compact) << Qt::endl;
    return found.lyrebird ? 0 : 1;
}
