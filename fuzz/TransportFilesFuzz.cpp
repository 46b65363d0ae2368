// pt_config.json and Tor Browser's preferences: the result may contain only valid bridge lines.
#include "fuzz/Require.h"

#include "bridges/BridgeLines.h"
#include "bridges/TransportFiles.h"

using namespace veldmark;

namespace {

void requireValid(const QMap<QString, QStringList> &bridges)
{
    for (const QStringList &lines : bridges) {
        for (const QString &line : lines)
            REQUIRE(BridgeLines::isValid(line));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    requireValid(bridgesOfTransportConfiguration(bytes));
    for (const QString &transport : transportsOfPluginLines(bytes, QStringLiteral("lyrebird")))
        REQUIRE(!transport.isEmpty() && !transport.contains(u',') && !transport.contains(u' '));
    const auto preferences = bridgesOfPreferences(QString::fromUtf8(bytes));
    requireValid(preferences);
    for (auto bridge = preferences.begin(); bridge != preferences.end(); ++bridge) {
        for (const QString &line : bridge.value())
            REQUIRE(BridgeLines::transport(line) == bridge.key());
    }
    return 0;
}
