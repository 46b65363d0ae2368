#pragma once

#include "base/Result.h"
#include "instance/InstanceError.h"

#include <QJsonObject>

#include <qcorotask.h>

#include <functional>
#include <memory>

namespace veldmark {

class JsonLines;
struct PlatformProfile;

// One command to the running instance. Lives on the thread whose event loop runs it.
class InstanceClient {
public:
    // Connects to the socket; nothing when no instance of this user's answers there.
    static std::shared_ptr<InstanceClient> connectTo(const PlatformProfile &profile);

    // Sends the command and waits for its end. `onState` hears every state that the instance sends
    // meanwhile. The error is the instance's own line, or that it has gone. Call it once.
    // see PublishedState.h
    using OnState = std::function<void(const QJsonObject &state, const QJsonObject &texts)>;
    QCoro::Task<Result<void, InstanceError>> run(QJsonObject request, OnState onState);

private:
    explicit InstanceClient(std::shared_ptr<JsonLines> lines) : m_lines(std::move(lines)) { }
    std::shared_ptr<JsonLines> m_lines;
};

} // namespace veldmark
