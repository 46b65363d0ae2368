#include "bridges/BridgeChoice.h"

namespace veldmark {

QString rawValue(BridgeChoice choice)
{
    switch (choice) {
    case BridgeChoice::off:
        return QStringLiteral("off");
    case BridgeChoice::obfs4:
        return QStringLiteral("obfs4");
    case BridgeChoice::snowflake:
        return QStringLiteral("snowflake");
    case BridgeChoice::meek:
        return QStringLiteral("meek");
    case BridgeChoice::custom:
        return QStringLiteral("custom");
    }
    Q_UNREACHABLE();
}

std::optional<BridgeChoice> bridgeChoiceFromRawValue(QStringView raw)
{
    for (const BridgeChoice choice : allBridgeChoices) {
        if (raw == rawValue(choice))
            return choice;
    }
    return std::nullopt;
}

QString displayName(BridgeChoice choice)
{
    switch (choice) {
    case BridgeChoice::off:
        return QStringLiteral("Off");
    case BridgeChoice::obfs4:
        return QStringLiteral("obfs4");
    case BridgeChoice::snowflake:
        return QStringLiteral("Snowflake");
    case BridgeChoice::meek:
        return QStringLiteral("meek");
    case BridgeChoice::custom:
        return QStringLiteral("Custom");
    }
    Q_UNREACHABLE();
}

QStringList builtinKeys(BridgeChoice choice)
{
    switch (choice) {
    case BridgeChoice::obfs4:
        return {QStringLiteral("obfs4")};
    case BridgeChoice::snowflake:
        return {QStringLiteral("snowflake")};
    case BridgeChoice::meek:
        return {QStringLiteral("meek_lite"), QStringLiteral("meek"), QStringLiteral("meek-azure")};
    case BridgeChoice::off:
    case BridgeChoice::custom:
        return {};
    }
    Q_UNREACHABLE();
}

} // namespace veldmark
