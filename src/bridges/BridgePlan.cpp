#include "bridges/BridgePlan.h"

#include "bridges/BridgeLines.h"
#include "bridges/TCPProbe.h"

#include <algorithm>

namespace veldmark {

namespace {
const QString snowflake = QStringLiteral("snowflake");
const QString webtunnel = QStringLiteral("webtunnel");

bool usesSnowflake(const QStringList &lines)
{
    return std::any_of(lines.begin(), lines.end(), [](const QString &line) {
        return BridgeLines::transport(line) == snowflake;
    });
}

bool holdsAll(const QStringList &lines, const QStringList &some)
{
    return !some.isEmpty() && std::all_of(some.begin(), some.end(), [&lines](const QString &line) {
        return lines.contains(line);
    });
}
} // namespace

Result<QStringList, BridgeError> selectedBridgeLines(const BridgeRequest &request,
                                                     const PluggableTransports &transports)
{
    return request.choice == BridgeChoice::custom ? BridgeLines::custom(request.customBridges)
                                                  : transports.builtinLines(request.choice);
}

bool lacksTransport(BridgeChoice choice, const QString &customBridges,
                    const PluggableTransports &found)
{
    switch (choice) {
    case BridgeChoice::off:
        return false;
    case BridgeChoice::obfs4:
    case BridgeChoice::meek:
        return !found.lyrebird || !found.builtinLines(choice);
    case BridgeChoice::snowflake:
        return !found.snowflake || !found.builtinLines(choice);
    case BridgeChoice::custom:
        break;
    }
    for (const QString &line : BridgeLines::parse(customBridges).lines) {
        const auto transport = BridgeLines::transport(line);
        if (!transport)
            continue;
        if (*transport == snowflake       ? !found.snowflake
                : *transport == webtunnel ? !found.webtunnel && !found.lyrebird
                                          : !found.lyrebird)
            return true;
    }
    return false;
}

Result<QStringList, BridgeError> bridgeArguments(const QStringList &lines,
                                                 const PluggableTransports &transports)
{
    QStringList arguments;
    QSet<QString> used;
    for (const QString &line : lines) {
        arguments << QStringLiteral("--bridge") << line;
        if (const std::optional<QString> transport = BridgeLines::transport(line))
            used.insert(*transport);
    }

    QSet<QString> byLyrebird = used;
    byLyrebird.intersect(PluggableTransports::lyrebirdTransports());
    QSet<QString> unsupported = used;
    unsupported.subtract(byLyrebird).remove(snowflake);
    if (!unsupported.isEmpty()) {
        const QString first = *std::min_element(unsupported.cbegin(), unsupported.cend());
        return Failure(BridgeError::unavailable(
            Text::tr("The %1 bridge type isn't supported yet.").arg(first)));
    }

    if (used.contains(webtunnel) && transports.webtunnel) {
        byLyrebird.remove(webtunnel);
        arguments << QStringLiteral("--pt-webtunnel") << *transports.webtunnel;
    }
    if (!byLyrebird.isEmpty()) {
        if (!transports.lyrebird)
            return Failure(BridgeError::unavailable(
                Text::tr("These bridges need lyrebird, which comes with Tor Browser. Click "
                         "Download next to Bridges to get it.")));
        arguments << QStringLiteral("--pt-lyrebird") << *transports.lyrebird;
    }
    if (used.contains(snowflake)) {
        if (!transports.snowflake)
            return Failure(BridgeError::unavailable(
                Text::tr("Snowflake needs snowflake-client, which comes with Tor Browser. "
                         "Click Download next to Bridges to get it.")));
        arguments << QStringLiteral("--pt-snowflake") << *transports.snowflake;
    }
    return arguments;
}

QCoro::Task<BridgePlan> planBridges(BridgeRequest request, BridgeTools tools)
{
    BridgePlan plan{std::nullopt, std::nullopt, QStringList()};
    if (request.choice == BridgeChoice::off)
        co_return plan;

    auto search = tools.locateWithoutAsking ? tools.locateWithoutAsking() : tools.locate();
    PluggableTransports found = co_await search;
    plan.transports = found;

    const Result<QStringList, BridgeError> selected = selectedBridgeLines(request, found);
    if (!selected) {
        plan.arguments = Failure(selected.error());
        co_return plan;
    }
    QStringList lines = *selected;
    if (tools.locateWithoutAsking && !found.snowflake && found.lyrebird && usesSnowflake(lines)) {
        auto asking = tools.locate();
        const PluggableTransports answered = co_await asking;
        found = answered;
        plan.transports = found;
    }
    if (request.optimizeSpeed && request.isBlocked) {
        if (holdsAll(lines, request.lastLines))
            lines = request.lastLines;
    } else if (request.optimizeSpeed) {
        auto test = fastestBridges(lines, tools.probe, tools.status);
        const QStringList fastest = co_await test;
        lines = fastest;
    }
    plan.lines = lines;
    plan.arguments = bridgeArguments(lines, found);
    co_return plan;
}

} // namespace veldmark
