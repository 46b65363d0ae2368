#pragma once

#include "cli/Arguments.h"

#include <QJsonObject>

#include <qcorotask.h>

namespace veldmark {

struct PlatformProfile;
struct PluggableTransports;

// `veldmarkctl bridges`: the transport programs with their paths and transports, and whether the
// stored custom lines are valid. Needs no running instance; it starts each program briefly to query
// it. Fails when a custom line is not valid.
QCoro::Task<ExitStatus> showBridges(Invocation invocation, PlatformProfile profile);

// `veldmarkctl add-bridges FILE`: adds the bridges that are found in the file or in standard input
// to the setting `customBridges`, and prints each. Lines that are there already stay as they are.
QCoro::Task<ExitStatus> addBridges(Invocation invocation, PlatformProfile profile);

// The text after a successful download; `told` is the controller's message, if any.
QString downloadedText(const PlatformProfile &profile, const QString &told);
// `veldmarkctl download-transports` without a running instance. Ctrl-C ends it and leaves no
// partial installation.
QCoro::Task<ExitStatus> downloadTransportsHere(PlatformProfile profile);

namespace Report {

// The output of the command, from its findings:
//
//     {"programs": {NAME: {"path": …, "serves": [transport…]} or null},
//      "builtin": {transport: count}, "source": label,
//      "bundle": {"version": …, "verification": "signature" or "https"} or null,
//      "custom": {"valid": count, "invalid": [{"line": number, "text": …}]}}
QString bridges(const QJsonObject &all);
// The invalid lines of the user's own bridges, in that command's words; empty when all are valid.
QStringList bridgeProblems(const QString &text);

} // namespace Report

} // namespace veldmark
