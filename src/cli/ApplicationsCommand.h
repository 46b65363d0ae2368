#pragma once

#include "base/Result.h"
#include "base/Text.h"
#include "cli/Arguments.h"
#include "platform/InstalledApplications.h"

#include <QJsonArray>
#include <QStringList>

#include <qcorotask.h>

#include <functional>

namespace veldmark {

struct PlatformProfile;

// `veldmarkctl apps`: the installed applications, and those that bypass Tor. Needs no running
// instance, because the choice is in the settings.
QCoro::Task<ExitStatus> showApplications(Invocation invocation, PlatformProfile profile);

// The absolute path for `wanted`: the name of an application (case-insensitive), the file name of
// its desktop entry with or without ".desktop", or a path of an existing file. The error is one
// line.
Result<QString, Text> applicationPath(const QString &wanted);
Result<QString, Text> applicationPath(const QString &wanted,
                                      const std::vector<InstalledApplication> &installed);

// Every installed application and every chosen one, sorted by name:
//
//     [{"path": …, "name": …, "bypassed": chosen, "installed": bool}]
//
// `nameOf` names the chosen applications that are not installed (or hidden).
QJsonArray applicationFindings(const std::vector<InstalledApplication> &installed,
                               const QStringList &chosen,
                               const std::function<QString(const QString &path)> &nameOf);

namespace Report {
QString applications(const QJsonArray &findings);
} // namespace Report

} // namespace veldmark
