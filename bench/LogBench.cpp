// Median times of reading, merging and parsing three log files of 1,000,000 bytes, for several
// kinds of content, and of a poll that finds nothing new; as one line of JSON. Usage: LogBench
// [REPETITIONS] (default 15). Build it with optimisation.
#include "MedianTime.h"
#include "log/TorLog.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTextStream>

#include <functional>
#include <vector>

using namespace veldmark;

namespace {

QByteArray repeated(const std::function<QByteArray(int)> &line)
{
    QByteArray content;
    for (int i = 0; content.size() < TorLog::fileLimitBytes; ++i)
        content += line(i) + '\n';
    content.truncate(TorLog::fileLimitBytes);
    return content;
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write");
}

} // namespace

int main(int argc, char **argv)
{
    const int repetitions = argc > 1 ? std::max(1, QByteArray(argv[1]).toInt()) : 15;
    const struct {
        const char *name;
        std::function<QByteArray(int)> line;
    } kinds[] = {
        {"torLines",
         [](int i) {
             return "Nov 16 00:41:07.123 [notice] Bootstrapped " + QByteArray::number(i % 100)
                 + "% (loading_descriptors): Loading relay descriptors, circuit "
                 + QByteArray::number(i);
         }},
        {"longTorLines",
         [](int i) {
             return "Nov 16 00:41:07.123 [notice] " + QByteArray::number(i) + QByteArray(970, 'x');
         }},
        {"longOtherLines", [](int i) { return QByteArray::number(i) + QByteArray(990, 'e'); }},
        {"tinyLines", [](int i) { return QByteArray::number(i % 10); }},
        {"fewLines", [](int i) { return QByteArray::number(i) + QByteArray(3000, 'w'); }},
    };

    QTemporaryDir folder;
    const TorLog log(PlatformProfile::linux(Places::below(folder.path())));
    QDir().mkpath(log.runDirectory());
    QJsonObject result{{QStringLiteral("bench"), QStringLiteral("log")},
                       {QStringLiteral("repetitions"), repetitions}};
    for (const auto &kind : kinds) {
        const QByteArray content = repeated(kind.line);
        write(log.startupPath(), content);
        write(log.noticesPath(), content);
        write(log.launcherPath(), content);
        qsizetype lines = 0;
        const double time = medianMilliseconds(repetitions,
                                               [&] { lines = log.read().lines().size(); });
        const QString name = QString::fromLatin1(kind.name);
        result.insert(name + QStringLiteral("MedianMs"), time);
        result.insert(name + QStringLiteral("Lines"), static_cast<qint64>(lines));
    }
    // All start-up lines are new: the whole of both files is compared.
    write(log.startupPath(),
          repeated([](int i) { return "s" + QByteArray::number(i) + QByteArray(60, 's'); }));
    write(log.noticesPath(),
          repeated([](int i) { return "n" + QByteArray::number(i) + QByteArray(990, 'n'); }));
    write(log.launcherPath(),
          repeated([](int i) { return "l" + QByteArray::number(i) + QByteArray(990, 'l'); }));
    result.insert(QStringLiteral("mergeMedianMs"),
                  medianMilliseconds(repetitions, [&] { log.read(); }));

    QString signature;
    constexpr int polls = 1000;
    const double poll = medianMilliseconds(repetitions, [&] {
        for (int i = 0; i < polls; ++i)
            signature = log.signature();
    });
    result.insert(QStringLiteral("pollMedianUs"), poll * 1000 / polls);
    QTextStream(stdout) << QJsonDocument(result).toJson(QJsonDocument::Compact) << Qt::endl;
    return signature.isEmpty() ? 1 : 0;
}
