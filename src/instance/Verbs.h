#pragma once

#include "base/Result.h"
#include "base/Text.h"
#include "instance/InstanceError.h"

#include <QJsonObject>
#include <QPointer>
#include <QStringList>

#include <qcorotask.h>

#include <functional>
#include <memory>
#include <vector>

namespace veldmark {

class JsonLines;
class TorController;

// A request to the running instance, and its outcome.
struct Call {
    QPointer<TorController> controller; // may be destroyed while the handler waits
    QJsonObject request;
    std::shared_ptr<JsonLines> lines; // the client's connection
    std::function<void()> raise;      // shows the instance's window
};
using Outcome = Result<void, InstanceError>;

// A command of veldmarkctl or of the running instance's socket. The table below defines each:
// arguments, usage text, completions, requests and the instance's answers are made from it.
struct Verb {
    enum class Id {
        run,
        status,
        connect,
        climb,
        disconnect,
        restore,
        check,
        fixDNS,
        circuits,
        closeCircuit,
        newIdentity,
        log,
        bridges,
        addBridges,
        downloadTransports,
        apps,
        launch,
        identities,
        renew,
        runAs,
        doctor,
        report,
        get,
        set,
        help,
        version,
        complete,
        watch, // only for the socket, as the next
        raise,
    };
    struct Option {
        QString name; // "--json"
        Text help;    // a few words
        // How the usage text names the word that must follow; empty: none does.
        QString value = {};
    };
    using Handler = QCoro::Task<Outcome> (*)(Call call);

    Id id;
    QString name; // as the user types it
    // As the usage text names them. Those in small letters are members of the request.
    QStringList operands = {};
    std::vector<Option> options = {};
    Text help = {}; // one or more lines; empty: hidden from users
    // The error for a missing operand; empty: the default one.
    Text missing = {};
    QString command = {};       // the socket's word, when it differs
    bool takesProgram = false;  // a program and its words follow the operands
    bool needsSession = false;  // refused by the instance unless it is connected
    bool streams = false;       // the client receives every change until it ends
    bool printsNoState = false; // veldmarkctl prints something else after it, or nothing
    // Only the session that was shown until now is meant, so a newer one is not looked up first.
    bool meansShownSession = false;
    bool isOnlyForSocket = false;
    Handler handler = nullptr; // in the running instance; null: veldmarkctl does the work

    // The command's name on the socket.
    QString requested() const { return command.isEmpty() ? name : command; }
    // The help's first words in the user's language, for a list.
    QString summary() const;
};

const std::vector<Verb> &verbs();
const Verb &verbOf(Verb::Id id);
const Verb *verbTyped(const QString &name);        // null: no command for users
const Verb *verbRequested(const QString &command); // null: unknown to the instance

} // namespace veldmark
