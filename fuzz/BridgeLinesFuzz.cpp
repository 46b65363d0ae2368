// Pasted bridge lines, in any UTF-16, bridges within other text, and the root helper's arguments
// for them.
#include "fuzz/Require.h"

#include "bridges/BridgeLines.h"
#include "bridges/BridgePlan.h"
#include "bridges/BridgeText.h"

#include <cstring>

using namespace veldmark;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    QString text = textOf(data + 1, size - 1);
    if (data[0] % 4 == 0) { // a text field can contain half a surrogate pair, which UTF-8 cannot
        text.resize(static_cast<qsizetype>((size - 1) / 2));
        std::memcpy(text.data(), data + 1, static_cast<std::size_t>(text.size()) * 2);
    }
    const ParsedBridgeLines parsed = BridgeLines::parse(text);
    REQUIRE(parsed.invalid.size() == static_cast<qsizetype>(parsed.invalidLineNumbers.size()));
    // The keyword is removed once. A second one, or one with a tab after it, stays as a transport
    // of that name.
    bool hasKeyword = false;
    for (const QString &line : parsed.lines) {
        const bool startsWithKeyword = line.startsWith(QStringLiteral("bridge "));
        hasKeyword = hasKeyword || startsWithKeyword;
        REQUIRE(BridgeLines::isValid(line)
                && (startsWithKeyword || BridgeLines::normalised(line) == line));
        for (const QString &word : line.split(u' '))
            REQUIRE(isPrintableWord(word));
        BridgeLines::transport(line);
        BridgeLines::address(line);
    }
    for (const QString &line : parsed.invalid) {
        REQUIRE(!line.isEmpty() && !BridgeLines::isValid(line));
        BridgeLines::address(line);
    }
    // A valid line stays valid when it is read again.
    REQUIRE(hasKeyword || BridgeLines::parse(parsed.lines.join(u'\n')).lines == parsed.lines);
    const auto custom = BridgeLines::custom(text);
    REQUIRE(custom.has_value() == (parsed.invalid.isEmpty() && !parsed.lines.isEmpty()));
    for (const QString &line : BridgeText::found(text))
        REQUIRE(BridgeLines::isValid(line) && BridgeLines::parse(line).lines == QStringList{line});

    PluggableTransports transports;
    transports.lyrebird = transports.snowflake = transports.webtunnel = QStringLiteral(
        "/usr/bin/lyrebird");
    if (const auto arguments = bridgeArguments(parsed.lines, transports)) {
        for (const QString &argument : *arguments)
            REQUIRE(!argument.isEmpty() && !argument.contains(u'\n') && !argument.contains(u'\r'));
    }
    return 0;
}
