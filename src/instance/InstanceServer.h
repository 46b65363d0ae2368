#pragma once

#include "base/Result.h"
#include "base/Text.h"
#include "instance/InstanceError.h"

#include <QJsonObject>
#include <QLocalServer>
#include <QLockFile>
#include <QObject>

#include <qcorotask.h>

#include <memory>
#include <vector>

// The socket of the running program: InstanceServer receives commands, InstanceClient sends them
// from another process. They exchange JSON, one object a line, over a local socket in a folder that
// only the user can enter.
//
//     → {"command": "connect"}                      also "set" with "key" and "value", …
//     ← {"state": {…every published field…}}        any number of these, as they change
//     ← {"ok": true}   or   {"ok": false, "error": "one line"}     the last line of the answer;
//                                                  with "usage": true when the request itself
//                                                  was wrong
//
// A connection carries one command. A client that reads slowly misses states, but not the last one.
// A client that disconnects does not stop its command.
namespace veldmark {

class JsonLines;
class TorController;

// Lives on the controller's thread, and must be destroyed before the controller. The destructor
// disconnects the clients. A client above 64 disconnects the oldest.
class InstanceServer : public QObject {
    Q_OBJECT

public:
    // Becomes the user's one instance: takes the lock beside the socket, then listens. The error
    // is one line: another instance runs, or the folder cannot be used.
    static Result<std::unique_ptr<InstanceServer>, Text> start(TorController &controller);
    ~InstanceServer() override;

Q_SIGNALS:
    // The user started the program a second time.
    void raiseRequested();

private:
    explicit InstanceServer(TorController &controller);
    void accept();
    QCoro::Task<void> serve(std::shared_ptr<JsonLines> lines);
    QCoro::Task<Result<void, InstanceError>> execute(QJsonObject request,
                                                     std::shared_ptr<JsonLines> lines);

    TorController &m_controller;
    std::shared_ptr<QLockFile> m_lock;
    std::vector<std::weak_ptr<JsonLines>> m_clients;
    QLocalServer m_server;
};

} // namespace veldmark
