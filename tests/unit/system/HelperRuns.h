#pragma once

#include "system/PrivilegedRunner.h"
#include "unit/system/StandIns.h"

namespace veldmark {

inline PrivilegedRunner::Outcome run(PrivilegedRunner &runner, QStringList arguments)
{
    return QCoro::waitFor(runner.runHelper(arguments));
}

inline const QStringList verb = {QStringLiteral("disconnect")};
inline const QStringList hostileArguments = {QStringLiteral("connect"),
                                             QStringLiteral("--tor"),
                                             QStringLiteral("/Users/o'neill/\"x\"\\tor"),
                                             QString::fromUtf8(""),
                                             QStringLiteral("a b\nc"),
                                             QStringLiteral("$HOME `id` \\\\ \\\" '' !"),
                                             QString::fromUtf8("Brücke")};

} // namespace veldmark
