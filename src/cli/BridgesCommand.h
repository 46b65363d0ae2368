#pragma once

#include "cli/Arguments.h"

#include <QJsonObject>

#include <qcorotask.h>

namespace veldmark {

struct PlatformProfile;
struct PluggableTransports;

// `veldmarkctl bridges`: what was found, where, what each program serves, and whether the stored
// custom lines are valid. Needs no running instance; it starts each program for a moment to ask it.
// Fails when a custom line is not valid.
QCoro::Task<ExitStatus> showBridges(Invocation invocation, PlatformProfile profile);

// What a download that went well comes to; `told`: what the controller has to say of it, if
// anything.
QString downloadedText(const PlatformProfile &profile, const QString &told);
// `veldmarkctl download-transports` where no instance runs. Ctrl-C ends it and leaves nothing half
// done.
QCoro::Task<ExitStatus> downloadTransportsHere(PlatformProfile profile);

namespace Report {

// What the command shows, from what it gathers:
//
//     {"programs": {NAME: {"path": …, "serves": [transport…]} or null},
//      "builtin": {transport: count}, "source": label,
//      "bundle": {"version": …, "verification": "signature" or "https"} or null,
//      "custom": {"valid": count, "invalid": [{"line": number, "text": …}]}}
QString bridges(const QJsonObject &findings);
// What of the user's own lines can't be used, as that command says it; empty when all can.
QStringList bridgeProblems(const QString &text);

} // namespace Report

} // namespace veldmark
