#include "instance/InstanceClient.h"

#include "instance/JsonLines.h"
#include "platform/PlatformProfile.h"

namespace veldmark {

namespace {
constexpr int connectLimitMs = 2000; // a local socket answers at once or never
} // namespace

std::shared_ptr<InstanceClient> InstanceClient::connectTo(const PlatformProfile &profile)
{
    for (const QString &place : QStringList(profile.controlSocket) + profile.otherControlSockets) {
        auto socket = std::make_unique<QLocalSocket>();
        socket->connectToServer(place);
        if (socket->waitForConnected(connectLimitMs))
            return std::shared_ptr<InstanceClient>(
                new InstanceClient(JsonLines::over(socket.release())));
    }
    return nullptr;
}

QCoro::Task<Result<void, InstanceError>> InstanceClient::run(QJsonObject request, OnState onState)
{
    const auto lines = m_lines;
    lines->write(request);
    for (;;) {
        const auto answer = co_await lines->next();
        if (!answer)
            co_return Failure(InstanceError(Text::tr("Veldmark stopped before it had answered.")));
        if (const QJsonValue state = answer->value(QStringLiteral("state")); state.isObject()) {
            onState(state.toObject(), answer->value(QStringLiteral("texts")).toObject());
            continue;
        }
        if (answer->value(QStringLiteral("ok")).toBool())
            co_return {};
        // An instance of an earlier version sends the error in English only.
        const QJsonValue text = answer->value(QStringLiteral("errorText"));
        co_return Failure(InstanceError(
            Text::fromJson(text.isUndefined() ? answer->value(QStringLiteral("error")) : text),
            answer->value(QStringLiteral("usage")).toBool()));
    }
}

} // namespace veldmark
