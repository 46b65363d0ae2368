#pragma once

#include "instance/InstanceClient.h"
#include "instance/InstanceServer.h"
#include "support/Workbench.h"

#include <QJsonObject>

namespace veldmark {

// One command given by a client, and what came of it.
struct Conversation {
    std::shared_ptr<InstanceClient> client;
    std::vector<QJsonObject> states;
    using Answer = Result<void, InstanceError>;
    std::optional<Answer> answer;

    Conversation(const Workbench &bench, const QJsonObject &request) : client(InstanceClient::connectTo(bench.profile))
    {
        if (client)
            talk(client, request, [this](const QJsonObject &state) { states.push_back(state); }, &answer);
    }
    Conversation(const Workbench &bench, const char *command)
        : Conversation(bench, QJsonObject{{QStringLiteral("command"), QLatin1String(command)}})
    {
    }
    bool ends() const
    {
        return until([this] { return answer.has_value(); });
    }
    bool succeeds() const { return ends() && answer->has_value(); }
    QString error() const { return ends() && !*answer ? answer->error().description() : QString(); }
    QString lastPhase() const
    {
        return states.empty() ? QString() : states.back().value(QStringLiteral("phase")).toString();
    }

private:
    static QCoro::Task<void> talk(std::shared_ptr<InstanceClient> client, QJsonObject request,
                                  std::function<void(const QJsonObject &)> onState, std::optional<Answer> *answer)
    {
        auto running = client->run(request, onState);
        const Answer result = co_await running;
        *answer = result;
    }
};

// A workbench whose program takes commands.
struct Instance {
    Workbench bench;
    std::unique_ptr<InstanceServer> server;

    explicit Instance(Workbench::System system = Workbench::System::linux) : bench(system)
    {
        auto started = InstanceServer::start(bench.controller());
        if (started)
            server = std::move(*started);
    }
    ~Instance()
    {
        server.reset();
        settle();
    }
};

} // namespace veldmark
