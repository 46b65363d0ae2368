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

// Sends one command to the running instance. Lives on the thread of its event loop.
class InstanceClient {
public:
    // Connects to the socket; null when no instance of this user answers.
    static std::shared_ptr<InstanceClient> connectTo(const PlatformProfile &profile);

    // Sends the command and waits for the end of the answer. `onState` receives every state that
    // the instance sends meanwhile. The error is the instance's own line, or says that the instance
    // has gone. Call it once.
    // See PublishedState.h.
    using OnState = std::function<void(const QJsonObject &state, const QJsonObject &texts)>;
    QCoro::Task<Result<void, InstanceError>> run(QJsonObject request, OnState onState);

private:
    explicit InstanceClient(std::shared_ptr<JsonLines> lines) : m_lines(std::move(lines)) { }
    std::shared_ptr<JsonLines> m_lines;
};

} // namespace veldmark
