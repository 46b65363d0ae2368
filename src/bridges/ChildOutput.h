#pragma once

#include "base/StopToken.h"

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <optional>

// Private to the room.
namespace veldmark {

struct ChildLimits {
    std::chrono::milliseconds time;
    qsizetype outputBytes;
    StopToken ended = {}; // requested when the output is no longer wanted
};

// Runs a program and reads its standard output until the program ends or `isEnough` is true. A
// program that still runs is then killed with every process of its group. Its standard input is
// empty and stays open, its standard error is discarded, and it has no terminal, so it cannot ask
// the user. Absent when the program cannot be started, exceeds a limit, or is no longer wanted. The
// exit status is ignored. Blocks; any thread but the main one.
std::optional<QByteArray> childOutput(const QString &program, const QStringList &arguments,
                                      const QProcessEnvironment &environment, ChildLimits limits,
                                      const std::function<bool(const QByteArray &)> &isEnough = {});

} // namespace veldmark
