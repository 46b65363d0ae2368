#pragma once

#include "base/Result.h"
#include "base/Text.h"
#include "instance/InstanceError.h"

#include <QJsonObject>
#include <QPointer>
#include <QStringList>

#include <qcorotask.h>

#include <memory>
#include <vector>

namespace veldmark {

class JsonLines;
class TorController;

// What the running instance is asked for, and how it ends.
struct Call {
    QPointer<TorController> controller; // may go while the handler waits
    QJsonObject request;
    std::shared_ptr<JsonLines> lines; // to the client
};
using Outcome = Result<void, InstanceError>;

// One word that veldmarkctl, or the running instance's socket, understands. The table below is all
// that there is to a word: arguments, usage text, completions, requests and the instance's answers
// are made from it.
struct Verb {
    enum class Id {
        run,
        status,
        connect,
        disconnect,
        restore,
        check,
        fixDNS,
        circuits,
        closeCircuit,
        newIdentity,
        log,
        bridges,
        downloadTransports,
        apps,
        launch,
        identities,
        renew,
        runAs,
        doctor,
        get,
        set,
        help,
        version,
        complete,
        watch, // for the socket alone
    };
    struct Option {
        QString name; // "--json"
        Text help;    // a few words
    };
    using Handler = QCoro::Task<Outcome> (*)(Call call);

    Id id;
    QString name; // as it is typed
    // as the usage text names them; in small letters, members of the request
    QStringList operands = {};
    std::vector<Option> options = {};
    Text help = {}; // one or more lines; empty: not told to users
    // the sentence for an operand that is not there; empty: a usual one
    Text missing = {};
    QString command = {};      // the socket's word, when it is another
    bool takesProgram = false; // a program and its words follow the operands
    bool needsSession = false; // refused by the instance unless it is connected
    bool streams = false;      // the client hears of every change until it ends
    Handler handler = nullptr; // in the running instance; absent: veldmarkctl does it by itself

    // What the socket calls it.
    QString requested() const { return command.isEmpty() ? name : command; }
    // The help's first words in the user's language, for a list.
    QString summary() const;
};

const std::vector<Verb> &verbs();
const Verb &verbOf(Verb::Id id);
const Verb *verbTyped(const QString &name);        // null: a user cannot type that
const Verb *verbRequested(const QString &command); // null: the instance does not know that

} // namespace veldmark
