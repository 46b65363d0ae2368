#include "bridges/ManagedProxy.h"

#include "base/RootsOwn.h"
#include "bridges/ChildOutput.h"

#include <QTemporaryDir>

#include <unistd.h>

namespace veldmark {

namespace {

constexpr qsizetype outputLimitBytes = 64 * 1024;

template <typename Use> void forEachLine(QByteArrayView output, Use use)
{
    while (!output.isEmpty()) {
        const qsizetype end = output.indexOf('\n');
        if (end < 0)
            return; // the line is incomplete
        use(output.first(end).trimmed());
        output = output.sliced(end + 1);
    }
}

} // namespace

QStringList announcedTransports(QByteArrayView output)
{
    QStringList transports;
    forEachLine(output, [&transports](QByteArrayView line) {
        const QByteArrayList words = line.toByteArray().simplified().split(' ');
        if (words.size() == 4 && words[0] == "CMETHOD")
            transports.append(QString::fromUtf8(words[1]));
    });
    return transports;
}

bool isAnnouncementComplete(QByteArrayView output)
{
    bool isComplete = false;
    forEachLine(output, [&isComplete](QByteArrayView line) {
        isComplete = isComplete || line == "CMETHODS DONE" || line.startsWith("VERSION-ERROR")
            || line.startsWith("ENV-ERROR") || line.startsWith("PROXY-ERROR");
    });
    return isComplete;
}

std::optional<QStringList> answeredTransports(const QString &program, const QStringList &asked,
                                              std::chrono::milliseconds limit,
                                              const StopToken &ended)
{
    if (::geteuid() == 0 && !isRootsOwn(program))
        return std::nullopt;
    const QTemporaryDir state;
    if (!state.isValid())
        return std::nullopt;

    QProcessEnvironment environment;
    const auto set = [&environment](const char *name, const QString &value) {
        environment.insert(QLatin1String(name), value);
    };
    set("PATH", QStringLiteral("/usr/bin:/bin"));
    set("HOME", state.path());
    set("TOR_PT_MANAGED_TRANSPORT_VER", QStringLiteral("1"));
    set("TOR_PT_STATE_LOCATION", state.path());
    set("TOR_PT_EXIT_ON_STDIN_CLOSE", QStringLiteral("1"));
    set("TOR_PT_CLIENT_TRANSPORTS", asked.join(u','));

    const std::optional<QByteArray> output = childOutput(
        program, {}, environment, {limit, outputLimitBytes, ended},
        [](const QByteArray &soFar) { return isAnnouncementComplete(soFar); });
    if (!output || !isAnnouncementComplete(*output))
        return std::nullopt;
    QStringList served = announcedTransports(*output);
    served.removeIf([&asked](const QString &name) { return !asked.contains(name); });
    return served;
}

QStringList servedTransports(const QString &program, const QStringList &asked,
                             std::chrono::milliseconds limit, const StopToken &ended)
{
    return answeredTransports(program, asked, limit, ended).value_or(QStringList());
}

} // namespace veldmark
