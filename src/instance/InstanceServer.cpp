#include "instance/InstanceServer.h"

#include "controller/PublishedState.h"
#include "controller/TorController.h"
#include "instance/InstancePlace.h"
#include "instance/JsonLines.h"
#include "platform/PlatformProfile.h"

#include <QLocalSocket>
#include <QMetaMethod>
#include <QPointer>

#include <algorithm>

#include <sys/socket.h>
#include <unistd.h>

namespace veldmark {

namespace {

const QString okKey = QStringLiteral("ok");
const QString errorKey = QStringLiteral("error");
const QString usageKey = QStringLiteral("usage");
const QString stateKey = QStringLiteral("state");

// What can only be asked of a connected Tor.
const QStringList sessionCommands = {QStringLiteral("check"), QStringLiteral("fix-dns"), QStringLiteral("circuits"),
                                     QStringLiteral("close-circuit"), QStringLiteral("new-identity"),
                                     QStringLiteral("launch")};
// Commands during which the client hears of every change.
const QStringList longCommands =
    QStringList{QStringLiteral("watch"), QStringLiteral("connect"), QStringLiteral("disconnect"),
                QStringLiteral("download-transports")}
    + sessionCommands;

bool hasCircuit(const TorController &controller, const QString &id)
{
    const auto &circuits = controller.circuits();
    return std::any_of(circuits.begin(), circuits.end(),
                       [&id](const CircuitInfo &circuit) { return circuit.id == id; });
}

auto refusal(const QString &description)
{
    return Failure(InstanceError(description));
}

QString connectFailure(const TorController &controller)
{
    const QString failure = controller.errorMessage().value_or(
        controller.otherSession() ? controller.statusDetail() : QStringLiteral("Cancelled."));
    return controller.bootstrapProblem() ? failure + u' ' + *controller.bootstrapProblem() : failure;
}

// The folder keeps other users out; this keeps them out also where its mode was changed.
bool isOwnUserOrRoot(const QLocalSocket &socket)
{
#ifdef Q_OS_LINUX
    ucred peer{};
    socklen_t size = sizeof peer;
    if (getsockopt(static_cast<int>(socket.socketDescriptor()), SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0)
        return false;
    return peer.uid == geteuid() || peer.uid == 0;
#else
    uid_t uid = 0;
    gid_t gid = 0;
    if (getpeereid(static_cast<int>(socket.socketDescriptor()), &uid, &gid) != 0)
        return false;
    return uid == geteuid() || uid == 0;
#endif
}

} // namespace

// Sends the state over one connection whenever it has changed, at most once per turn of the event
// loop, however many fields changed in it, and not before the other end has taken the last one.
class StateStream : public QObject {
    Q_OBJECT

public:
    StateStream(TorController &controller, std::shared_ptr<JsonLines> lines)
        : m_controller(&controller), m_lines(std::move(lines))
    {
        const QMetaObject *type = controller.metaObject();
        const QMetaMethod slot =
            metaObject()->method(metaObject()->indexOfSlot("scheduleSend()"));
        for (int i = type->methodOffset(); i < type->methodCount(); ++i) {
            const QMetaMethod method = type->method(i);
            if (method.methodType() == QMetaMethod::Signal)
                QObject::connect(&controller, method, this, slot);
        }
        QObject::connect(m_lines.get(), &JsonLines::sent, this, &StateStream::sendIfBehind);
        sendNow();
    }

    // The other end never misses the last state, also when a command fails.
    ~StateStream() override
    {
        if (m_scheduled || m_behind)
            sendNow();
    }

    void sendNow()
    {
        m_behind = false;
        if (m_controller)
            m_lines->write({{stateKey, publishedState(*m_controller)}});
    }

private Q_SLOTS:
    void scheduleSend()
    {
        if (m_scheduled)
            return;
        m_scheduled = true;
        QMetaObject::invokeMethod(this, &StateStream::send, Qt::QueuedConnection);
    }
    void send()
    {
        m_scheduled = false;
        m_behind = m_lines->hasUnsent();
        if (!m_behind)
            sendNow();
    }
    void sendIfBehind()
    {
        if (m_behind)
            send();
    }

private:
    QPointer<TorController> m_controller;
    std::shared_ptr<JsonLines> m_lines;
    bool m_scheduled = false;
    bool m_behind = false; // a change waits until the other end has read
};

Result<std::unique_ptr<InstanceServer>, QString> InstanceServer::start(TorController &controller)
{
    const QString path = controller.profile().controlSocket;
    const auto lock = lockInstance(controller.profile());
    if (!lock)
        return Failure(lock.error());
    std::unique_ptr<InstanceServer> server(new InstanceServer(controller));
    server->m_lock = *lock;
    // With the lock ours, a socket that is still there belongs to a program that has crashed.
    QLocalServer::removeServer(path);
    server->m_server.setSocketOptions(QLocalServer::UserAccessOption);
    if (!server->m_server.listen(path))
        return Failure(QStringLiteral("Couldn't listen on %1: %2.").arg(path, server->m_server.errorString()));
    return server;
}

InstanceServer::InstanceServer(TorController &controller) : m_controller(controller)
{
    QObject::connect(&m_server, &QLocalServer::newConnection, this, &InstanceServer::accept);
}

InstanceServer::~InstanceServer()
{
    for (const auto &client : m_clients) {
        if (const auto lines = client.lock())
            lines->abort();
    }
}

void InstanceServer::accept()
{
    while (QLocalSocket *socket = m_server.nextPendingConnection()) {
        if (!isOwnUserOrRoot(*socket)) {
            delete socket;
            continue;
        }
        const auto lines = JsonLines::over(socket);
        std::erase_if(m_clients, [](const auto &client) { return client.expired(); });
        m_clients.push_back(lines);
        serve(lines);
    }
}

QCoro::Task<void> InstanceServer::serve(std::shared_ptr<JsonLines> lines)
{
    const QPointer<InstanceServer> self(this);
    const auto request = co_await lines->next();
    if (!self)
        co_return;
    Result<void, InstanceError> done = refusal(QStringLiteral("A command is a JSON object on one line."));
    if (request) {
        auto executing = execute(*request, lines);
        done = co_await executing;
    }
    QJsonObject answer{{okKey, done.has_value()}};
    if (!done)
        answer.insert(errorKey, done.error().description());
    if (!done && done.error().isUsage())
        answer.insert(usageKey, true);
    lines->write(answer);
    co_await lines->finish();
}

QCoro::Task<Result<void, InstanceError>> InstanceServer::execute(QJsonObject request,
                                                                 std::shared_ptr<JsonLines> lines)
{
    const QPointer<TorController> controller(&m_controller);
    const QString command = request.value(QStringLiteral("command")).toString();
    // Another process may have changed what this one shows. What is to be ended is what was shown until now, and no other.
    if (command != QLatin1String("disconnect") || !m_controller.isSessionMarkerPresent())
        m_controller.lookAtSession();
    if (command == QLatin1String("raise")) {
        Q_EMIT raiseRequested();
        co_return {};
    }
    if (command == QLatin1String("status")) {
        lines->write({{stateKey, publishedState(m_controller)}});
        co_return {};
    }
    if (command == QLatin1String("set")) {
        const QJsonValue key = request.value(QStringLiteral("key"));
        const QJsonValue value = request.value(QStringLiteral("value"));
        if (!key.isString() || !value.isString())
            co_return refusal(QStringLiteral("\"set\" needs a \"key\" and a \"value\", both strings."));
        const auto set = setSetting(m_controller, key.toString(), value.toString());
        if (!set)
            co_return Failure(InstanceError(set.error().description(),
                                            set.error().kind() == SettingError::Kind::Refused));
        co_return {};
    }
    if (!longCommands.contains(command))
        co_return refusal(QStringLiteral("Unknown command \"%1\".").arg(command.left(40).simplified()));

    StateStream stream(m_controller, lines);
    if (command == QLatin1String("watch")) {
        while (co_await lines->next()) { // until the other end goes; it has nothing more to say
        }
        co_return {};
    }
    if (command == QLatin1String("connect")) {
        if (controller->optionsLocked())
            co_return refusal(QStringLiteral("Already connected, or on the way; \"veldmarkctl status\" says more."));
        co_await m_controller.connect();
        if (controller && controller->phase() != ConnectionPhase::connected)
            co_return refusal(connectFailure(*controller));
    } else if (command == QLatin1String("disconnect")) {
        const bool underWay = controller->phase() == ConnectionPhase::disconnecting
            || (controller->phase() == ConnectionPhase::connecting && !controller->canCancel());
        if (underWay)
            co_return refusal(QStringLiteral("Not now: %1").arg(controller->statusDetail()));
        if (controller->phase() != ConnectionPhase::disconnected || controller->isSessionMarkerPresent()) { // else there is nothing to do
            const auto ended = co_await m_controller.disconnect();
            if (!ended)
                co_return refusal(ended.error().isEmpty() ? QStringLiteral("Cancelled.") : ended.error());
        }
    } else if (command == QLatin1String("download-transports")) {
        if (!controller->canDownloadTransports())
            co_return refusal(QStringLiteral("Not now: %1").arg(
                controller->transportDownload().value_or(controller->statusDetail())));
        auto downloading = m_controller.downloadTransports();
        const bool isInstalled = co_await downloading;
        if (controller && !isInstalled)
            co_return refusal(controller->transportDownload().value_or(QStringLiteral("Cancelled.")));
    } else if (controller->phase() != ConnectionPhase::connected) {
        co_return refusal(QStringLiteral("Not connected."));
    } else if (command == QLatin1String("check")) {
        if (controller->isChecking())
            co_return refusal(QStringLiteral("A check is already running."));
        co_await m_controller.runChecks();
    } else if (command == QLatin1String("fix-dns")) {
        co_await m_controller.fixDNS();
        if (controller && controller->failure())
            co_return refusal(*controller->failure());
        if (controller && controller->dnsStatus().isLeak())
            co_return refusal(QStringLiteral("Cancelled."));
    } else if (command == QLatin1String("launch")) {
        const QString path = request.value(QStringLiteral("app")).toString();
        if (!path.startsWith(u'/'))
            co_return refusal(QStringLiteral("\"launch\" needs an \"app\", an absolute path."));
        auto launching = m_controller.launchBypassed(path);
        const auto launched = co_await launching;
        if (controller && !launched && controller->phase() == ConnectionPhase::connected)
            co_return refusal(launched.error().isEmpty() ? QStringLiteral("Cancelled.") : launched.error());
    } else if (command == QLatin1String("close-circuit")) {
        const QString id = request.value(QStringLiteral("id")).toString();
        co_await m_controller.refreshCircuits();
        if (!controller)
            co_return {};
        if (controller->circuitError())
            co_return refusal(*controller->circuitError());
        if (!hasCircuit(*controller, id))
            co_return refusal(QStringLiteral("There is no circuit \"%1\".").arg(id.left(40).simplified()));
        co_await m_controller.newCircuit(id);
        if (controller && hasCircuit(*controller, id))
            co_return refusal(QStringLiteral("Tor didn't close circuit %1.").arg(id));
    } else if (command == QLatin1String("circuits")) {
        co_await m_controller.refreshCircuits();
        if (controller && controller->circuitError())
            co_return refusal(*controller->circuitError());
    } else if (command == QLatin1String("new-identity")) {
        co_await m_controller.newIdentity();
        if (controller && controller->failure())
            co_return refusal(*controller->failure());
    }
    // What was asked of a session that ended meanwhile has no answer; the fields hold an earlier one.
    if (controller && sessionCommands.contains(command) && controller->phase() != ConnectionPhase::connected)
        co_return refusal(QStringLiteral("The session has ended: %1").arg(controller->statusDetail()));
    if (controller)
        stream.sendNow(); // the last word, with everything that the command changed
    co_return {};
}

} // namespace veldmark

#include "InstanceServer.moc"
