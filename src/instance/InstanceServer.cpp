#include "instance/InstanceServer.h"

#include "controller/TorController.h"
#include "instance/Handlers.h"
#include "instance/InstancePlace.h"
#include "instance/JsonLines.h"
#include "instance/Verbs.h"
#include "platform/PlatformProfile.h"

#include <QLocalSocket>
#include <QPointer>

#include <optional>

#include <sys/socket.h>
#include <unistd.h>

namespace veldmark {

namespace {

const QString okKey = QStringLiteral("ok");
const QString errorKey = QStringLiteral("error");
const QString errorTextKey = QStringLiteral("errorText");
const QString usageKey = QStringLiteral("usage");

// A program of the user's could otherwise take all descriptors, which the marker's reading and the
// helper need.
constexpr std::size_t clientLimit = 64;

auto refusal(const Text &description)
{
    return Failure(InstanceError(description));
}

// The folder's mode keeps other users out; this check does so even when the mode was changed.
bool isOwnUserOrRoot(const QLocalSocket &socket)
{
#ifdef Q_OS_LINUX
    ucred peer{};
    socklen_t size = sizeof peer;
    if (getsockopt(static_cast<int>(socket.socketDescriptor()), SOL_SOCKET, SO_PEERCRED, &peer,
                   &size)
        != 0)
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

// Sends the state over one connection after changes, at most once per turn of the event loop, and
// not before the client has read the last state.
class StateStream : public QObject {
    Q_OBJECT

public:
    StateStream(TorController &controller, std::shared_ptr<JsonLines> lines)
        : m_controller(&controller),
          m_lines(std::move(lines))
    {
        for (const Field *field : controller.fields())
            QObject::connect(field, &Field::changed, this, &StateStream::scheduleSend);
        QObject::connect(m_lines.get(), &JsonLines::sent, this, &StateStream::sendIfBehind);
        sendNow();
    }

    // Sends the final state, with all the command's changes, even after a failure.
    ~StateStream() override
    {
        if (m_scheduled || m_behind)
            sendNow();
    }

    void sendNow()
    {
        m_behind = false;
        if (m_controller)
            m_lines->write(Handlers::stateMessage(*m_controller));
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
    bool m_behind = false; // a change waits until the client has read the last state
};

Result<std::unique_ptr<InstanceServer>, Text> InstanceServer::start(TorController &controller)
{
    const QString path = controller.profile().controlSocket;
    const auto lock = lockInstance(controller.profile());
    if (!lock)
        return Failure(lock.error());
    std::unique_ptr<InstanceServer> server(new InstanceServer(controller));
    server->m_lock = *lock;
    // This process holds the lock, so an existing socket belongs to a crashed instance.
    QLocalServer::removeServer(path);
    server->m_server.setSocketOptions(QLocalServer::UserAccessOption);
    if (!server->m_server.listen(path))
        return Failure(
            Text::tr("Couldn't listen on %1: %2.").arg(path, server->m_server.errorString()));
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
        if (m_clients.size() >= clientLimit) {
            const auto oldest = m_clients.front().lock();
            m_clients.erase(m_clients.begin());
            if (oldest)
                oldest->abort();
        }
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
    Result<void, InstanceError> done = refusal(Text::tr("A command is a JSON object on one line."));
    if (request) {
        auto executing = execute(*request, lines);
        done = co_await executing;
    }
    QJsonObject answer{{okKey, done.has_value()}};
    if (!done) {
        answer.insert(errorKey, done.error().description().english());
        answer.insert(errorTextKey, done.error().description().toJson());
    }
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
    const Verb *const verb = verbRequested(command);
    // Another process may have changed the session.
    if (!verb || !verb->meansShownSession || !m_controller.isSessionMarkerPresent())
        m_controller.lookAtSession();
    if (!verb)
        co_return refusal(Text::tr("Unknown command \"%1\".").arg(command.left(40).simplified()));
    std::optional<StateStream> stream;
    if (verb->streams)
        stream.emplace(m_controller, lines);
    if (verb->needsSession && controller->phase() != ConnectionPhase::connected)
        co_return refusal(Text::tr("Not connected."));
    const Call call{controller, request, lines, [this] { Q_EMIT raiseRequested(); }};
    auto handling = verb->handler(call);
    const Outcome done = co_await handling;
    if (!done)
        co_return done;
    // The session ended meanwhile; the fields are stale.
    if (controller && verb->needsSession && controller->phase() != ConnectionPhase::connected)
        co_return refusal(Text::tr("The session has ended: %1").arg(controller->statusDetail()));
    co_return {};
}

} // namespace veldmark

#include "InstanceServer.moc"
