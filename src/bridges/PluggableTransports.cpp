#include "bridges/PluggableTransports.h"

#include "base/ProgramFile.h"
#include "bridges/BridgeLines.h"
#include "bridges/ChildOutput.h"
#include "bridges/FileSearch.h"
#include "bridges/ManagedProxy.h"
#include "bridges/TransportFiles.h"
#include "bridges/TransportMemory.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace std::chrono_literals;

namespace veldmark {

namespace {

constexpr qint64 configurationLimitBytes = 16 * 1024 * 1024;
constexpr std::chrono::milliseconds unzipLimit = 20s;
constexpr std::chrono::milliseconds lyrebirdLimit = 5s;
constexpr qsizetype preferencesLimitBytes = 16 * 1024 * 1024;
const QString snowflakeTransport = QStringLiteral("snowflake");

// Empty when the file is missing or too large. Never opens a pipe or a device.
QByteArray readFile(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray content = file.read(configurationLimitBytes + 1);
    return content.size() > configurationLimitBytes ? QByteArray() : content;
}

std::optional<QMap<QString, QStringList>> bridgesOfArchive(const QString &unzip,
                                                           const QString &archive,
                                                           const StopToken &ended)
{
    // The user's own UNZIP options would change the output.
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    const std::optional<QByteArray> preferences = childOutput(
        unzip,
        {QStringLiteral("-p"), archive, QStringLiteral("defaults/preferences/000-tor-browser.js")},
        environment, {unzipLimit, preferencesLimitBytes, ended});
    if (!preferences)
        return std::nullopt;
    return bridgesOfPreferences(QString::fromUtf8(*preferences));
}

// One search of all places. Also knows whether the pt_config.json beside the chosen lyrebird says
// that it serves snowflake.
class Search {
public:
    Search(QString unzip, StopToken ended, TransportMemory &memory, bool mayAsk)
        : m_unzip(std::move(unzip)),
          m_ended(std::move(ended)),
          m_memory(memory),
          m_mayAsk(mayAsk)
    {
    }

    void scan(const QString &root, const QString &label)
    {
        const bool wasEmpty = m_found.builtin.isEmpty();
        QStringList archives;
        QStringList configurations;
        bool hasLyrebird = false;
        const QStringList files = filesNamed(
            root, {"lyrebird", "snowflake-client", "webtunnel-client", "pt_config.json", "omni.ja"},
            m_ended);
        for (const QString &path : files) {
            const QStringView name = QStringView(path).sliced(path.lastIndexOf(u'/') + 1);
            if (name == u"lyrebird" && isProgram(path)) {
                m_found.lyrebird = path;
                hasLyrebird = true;
            } else if (name == u"snowflake-client" && !m_found.snowflake && isProgram(path)) {
                m_found.snowflake = path;
            } else if (name == u"webtunnel-client" && !m_found.webtunnel && isProgram(path)) {
                m_found.webtunnel = path;
            } else if (name == u"pt_config.json") {
                configurations.append(path);
            } else if (name == u"omni.ja") {
                archives.append(path);
            }
        }

        QStringList served;
        for (const QString &path : configurations) {
            const QByteArray configuration = readFile(path);
            if (m_found.builtin.isEmpty())
                m_found.builtin = bridgesOfTransportConfiguration(configuration);
            if (hasLyrebird)
                served += transportsOfPluginLines(configuration, QStringLiteral("lyrebird"));
        }
        if (hasLyrebird)
            m_lyrebirdSaysSnowflake = served.contains(snowflakeTransport);

        for (const QString &archive : archives) {
            if (m_found.builtin.isEmpty())
                m_found.builtin = m_memory.bridges(
                    archive, [&] { return bridgesOfArchive(m_unzip, archive, m_ended); });
        }
        if (wasEmpty && !m_found.builtin.isEmpty())
            m_found.source = label;
    }

    // Searches folders with programs that belong to no bundle.
    void searchFolders(const QStringList &folders)
    {
        if (!m_found.lyrebird)
            m_found.lyrebird = firstProgram(
                folders, {QStringLiteral("lyrebird"), QStringLiteral("obfs4proxy")});
        if (!m_found.snowflake)
            m_found.snowflake = firstProgram(folders, {QStringLiteral("snowflake-client")});
    }

    PluggableTransports result()
    {
        if (!m_found.snowflake && m_found.lyrebird
            && (m_lyrebirdSaysSnowflake || served(*m_found.lyrebird).contains(snowflakeTransport)))
            m_found.snowflake = m_found.lyrebird;
        return m_found;
    }

private:
    QStringList served(const QString &program)
    {
        std::function<std::optional<QStringList>()> ask;
        if (m_mayAsk)
            ask = [&] {
                return answeredTransports(program, {snowflakeTransport}, lyrebirdLimit, m_ended);
            };
        return m_memory.served(program, ask);
    }

    static std::optional<QString> firstProgram(const QStringList &folders, const QStringList &names)
    {
        for (const QString &folder : folders) {
            for (const QString &name : names) {
                const QString path = folder + u'/' + name;
                if (isProgram(path))
                    return path;
            }
        }
        return std::nullopt;
    }

    QString m_unzip;
    StopToken m_ended;
    TransportMemory &m_memory;
    bool m_mayAsk;
    PluggableTransports m_found;
    bool m_lyrebirdSaysSnowflake = false;
};

} // namespace

const QSet<QString> &PluggableTransports::lyrebirdTransports()
{
    static const QSet<QString> transports = {QStringLiteral("obfs4"), QStringLiteral("meek_lite"),
                                             QStringLiteral("webtunnel"), QStringLiteral("obfs3"),
                                             QStringLiteral("scramblesuit")};
    return transports;
}

Result<QStringList, BridgeError> PluggableTransports::builtinLines(BridgeChoice choice) const
{
    const QStringList keys = builtinKeys(choice);
    for (const QString &key : keys) {
        QStringList lines = builtin.value(key);
        if (key != keys.constFirst()) {
            lines.removeIf([&keys](const QString &line) {
                return BridgeLines::transport(line) != keys.constFirst();
            });
        }
        if (!lines.isEmpty())
            return lines.first(std::min(lines.size(), BridgeLines::mostLines));
    }
    return Failure(BridgeError::unavailable(
        Text::tr("Built-in %1 bridges come from Tor Browser. Click Download next to Bridges, "
                 "install Tor Browser, or paste your own under Bridges → Custom….")
            .arg(displayName(choice))));
}

PluggableTransports PluggableTransports::locate(const PlatformProfile &profile,
                                                std::optional<QString> bundleVersion,
                                                const StopToken &ended, TransportMemory *memory,
                                                bool mayAsk)
{
    TransportMemory none;
    Search search(profile.unzip, ended, memory ? *memory : none, mayAsk);
    for (const ProgramRoot &root : profile.transportRoots()) {
        const bool hasVersion = root.path == profile.bundleDirectory && bundleVersion
            && !bundleVersion->isEmpty();
        search.scan(root.path, hasVersion ? root.label + u' ' + *bundleVersion : root.label);
    }
    search.searchFolders(profile.transportDirectories);
    return search.result();
}

} // namespace veldmark
