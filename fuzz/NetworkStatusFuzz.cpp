// Tor's replies about relays, countries and its own start. Addresses from here go into the next
// command to Tor.
#include "fuzz/Require.h"

#include "circuits/CircuitParser.h"
#include "controller/TorController.h"

#include <QHostAddress>

using namespace veldmark;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = textOf(data, size);
    const QStringList lines = text.split(u'\n');
    if (const auto address = CircuitParser::ipFromNetworkStatus(lines)) {
        REQUIRE(isPrintableWord(*address));
        REQUIRE(QHostAddress(*address).protocol() == QAbstractSocket::IPv4Protocol);
    }
    for (const QString &line : lines.mid(0, 8))
        CircuitParser::ipOfBridge(line.section(u' ', 0, 0), lines);
    if (const auto country = CircuitParser::country(lines)) {
        REQUIRE(country->size() == 2);
        REQUIRE(CircuitParser::flag(*country).size() == 4);
    }
    if (const auto time = CircuitParser::timeFormatter(lines.constFirst())) {
        REQUIRE(time->isValid());
        REQUIRE(
            lines.constFirst().startsWith(time->toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss"))));
    }
    const BootstrapStatus status = TorController::parseBootstrap(text);
    REQUIRE(status.progress >= 0);
    REQUIRE(status.summary.size() <= text.size()); // a quoted string may contain escaped quotes
    return 0;
}
