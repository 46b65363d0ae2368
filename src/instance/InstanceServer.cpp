#include "instance/InstanceServer.h"

#include "controller/PublishedState.h"
#include "controller/TorController.h"
#include "instance/InstancePlace.h"
#include "instance/JsonLines.h"
#include "platform/PlatformProfile.h"

#include <QLocalSocket>
#include <QMetaMethod>
#include <QPointer>

#include <sys/socket.h>
#include <unistd.h>

namespace veldmark {

namespace {

const QString okKey = QStringLiteral("ok");
const QString errorKey = QStringLiteral("error");
const QString stateKey = QStringLiteral("state");

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
// loop, however many fields changed in it.
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
        send();
    }

    void send()
    {
        m_scheduled = false;
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

private:
    QPointer<TorController> m_controller;
    std::shared_ptr<JsonLines> m_lines;
    bool m_scheduled = false;
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

InstanceServer::~InstanceServer() = default;

void InstanceServer::accept()
{
    while (QLocalSocket *socket = m_server.nextPendingConnection()) {
        if (isOwnUserOrRoot(*socket))
            serve(JsonLines::over(socket));
        else
            delete socket;
    }
}

QCoro::Task<void> InstanceServer::serve(std::shared_ptr<JsonLines> lines)
{
    const QPointer<InstanceServer> self(this);
    const auto request = co_await lines->next();
    if (!self || !request)
        co_return;
    const auto done = co_await execute(*request, lines);
    lines->write(done ? QJsonObject{{okKey, true}}
                      : QJsonObject{{okKey, false}, {errorKey, done.error()}});
    lines->close();
}

QCoro::Task<Result<void, QString>> InstanceServer::execute(QJsonObject request,
                                                           std::shared_ptr<JsonLines> lines)
{
    const QPointer<TorController> controller(&m_controller);
    const QString command = request.value(QStringLiteral("command")).toString();
    if (command == QLatin1String("raise")) {
        Q_EMIT raiseRequested();
        co_return {};
    }
    if (command == QLatin1String("status")) {
        lines->write({{stateKey, publishedState(m_controller)}});
        co_return {};
    }
    if (command == QLatin1String("set"))
        co_return setSetting(m_controller, request.value(QStringLiteral("key")).toString(),
                             request.value(QStringLiteral("value")).toString());

    StateStream stream(m_controller, lines);
    if (command == QLatin1String("watch")) {
        while (co_await lines->next()) { // until the other end goes; it has nothing more to say
        }
        co_return {};
    }
    if (command == QLatin1String("connect")) {
        if (controller->optionsLocked())
            co_return Failure(QStringLiteral("Already connected, or on the way; \"veldmarkctl status\" says more."));
        co_await m_controller.connect();
        if (controller && controller->phase() != ConnectionPhase::connected)
            co_return Failure(controller->errorMessage().value_or(QStringLiteral("Cancelled.")));
    } else if (command == QLatin1String("disconnect")) {
        const bool nothingToDo = controller->phase() == ConnectionPhase::disconnected;
        co_await m_controller.disconnect();
        if (controller && !nothingToDo && controller->phase() != ConnectionPhase::disconnected)
            co_return Failure(controller->errorMessage().value_or(
                QStringLiteral("Not now: %1").arg(controller->statusDetail())));
    } else if (command == QLatin1String("download-transports")) {
        if (!controller->canDownloadTransports())
            co_return Failure(QStringLiteral("Not now: %1").arg(
                controller->transportDownload().value_or(controller->statusDetail())));
        auto downloading = m_controller.downloadTransports();
        const bool isInstalled = co_await downloading;
        if (controller && !isInstalled)
            co_return Failure(controller->transportDownload().value_or(QStringLiteral("Cancelled.")));
    } else if (controller->phase() != ConnectionPhase::connected) {
        co_return Failure(QStringLiteral("Not connected."));
    } else if (command == QLatin1String("check")) {
        co_await m_controller.runChecks();
    } else if (command == QLatin1String("circuits")) {
        co_await m_controller.refreshCircuits();
        if (controller && controller->circuitError())
            co_return Failure(*controller->circuitError());
    } else if (command == QLatin1String("new-identity")) {
        controller->dismissError();
        co_await m_controller.newIdentity();
        if (controller && controller->errorMessage())
            co_return Failure(*controller->errorMessage());
    } else {
        co_return Failure(QStringLiteral("Unknown command \"%1\".").arg(command.left(40)));
    }
    if (controller)
        stream.send(); // the last word, with everything that the command changed
    co_return {};
}

} // namespace veldmark

#include "InstanceServer.moc"
