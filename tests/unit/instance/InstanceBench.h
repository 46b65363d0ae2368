#pragma once

#include "instance/InstanceClient.h"
#include "instance/InstanceServer.h"
#include "support/Workbench.h"

#include <QJsonObject>

namespace veldmark {

// A client's command and its outcome. The object may be destroyed before the client has its answer.
struct Conversation {
    using Answer = Result<void, InstanceError>;
    struct Heard {
        std::vector<QJsonObject> states;
        std::optional<Answer> answer;
    };

    const std::shared_ptr<InstanceClient> client;
    const std::shared_ptr<Heard> heard = std::make_shared<Heard>();
    std::vector<QJsonObject> &states = heard->states;
    std::optional<Answer> &answer = heard->answer;

    Conversation(const Workbench &bench, const QJsonObject &request)
        : client(InstanceClient::connectTo(bench.profile))
    {
        if (client)
            talk(client, request, heard);
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
    QString error() const
    {
        return ends() && !*answer ? answer->error().description().english() : QString();
    }
    QString lastPhase() const
    {
        return states.empty() ? QString() : states.back().value(QStringLiteral("phase")).toString();
    }

private:
    static QCoro::Task<void> talk(std::shared_ptr<InstanceClient> client, QJsonObject request,
                                  std::shared_ptr<Heard> heard)
    {
        const InstanceClient::OnState onState = [heard](const QJsonObject &state,
                                                        const QJsonObject &) {
            heard->states.push_back(state);
        };
        auto running = client->run(request, onState);
        const Answer result = co_await running;
        heard->answer = result;
    }
};

// A workbench whose program accepts commands.
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
