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
    StopToken ended = {}; // nobody wants the output any more
};

// Runs a program with an empty standard input that stays open, reads its standard output until it
// closes, or until `isEnough` says so, and ends it with every process of its group. Standard error
// goes nowhere. It has no terminal, so it cannot ask the user anything.
// Nothing when it cannot be started, or went past a limit, or is not wanted any more. Its exit
// status is not looked at. Blocks; any thread but the one that draws.
std::optional<QByteArray> childOutput(const QString &program, const QStringList &arguments,
                                      const QProcessEnvironment &environment, ChildLimits limits,
                                      const std::function<bool(const QByteArray &)> &isEnough = {});

} // namespace veldmark
