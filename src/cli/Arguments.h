#pragma once

#include "base/Result.h"
#include "base/Text.h"
#include "instance/Verbs.h"

#include <QString>
#include <QStringList>

namespace veldmark {

// One call of veldmarkctl.
struct Invocation {
    Verb::Id verb = Verb::Id::help;
    bool connectNow = false; // run --connect
    bool json = false;       // status, circuits, bridges, apps, doctor, report
    bool watch = false;      // status
    bool follow = false;     // log
    bool problems = false;   // log
    // the first operand: get, set; close-circuit's id; launch's application
    QString key;
    QString value;       // the second: set
    QString output;      // report: the file, or empty
    QStringList program; // run-as: the program with its own arguments
};

// The exit status of the process.
enum class ExitStatus {
    done = 0,
    failed = 1,         // the reason is on standard error, in one line
    usage = 2,          // unknown verb, option, key or value
    notRunning = 3,     // the command needs a running instance
    alreadyRunning = 4, // run: another instance of this user runs, or its socket is taken
};

// Parses the arguments after the program's name. The error is one line.
Result<Invocation, Text> parseArguments(const QStringList &arguments);

QString usageText();

} // namespace veldmark
