#pragma once

#include "cli/Arguments.h"
#include "doctor/Finding.h"

#include <QJsonObject>

#include <qcorotask.h>

namespace veldmark {

struct PlatformProfile;

// `veldmarkctl doctor`: looks at this computer, with or without a running instance. Fails unless a
// connect can work, as far as anybody but the network can tell.
QCoro::Task<ExitStatus> showDoctor(Invocation invocation, PlatformProfile profile);

// {"canConnect": bool, or null where that can't be told,
//  "findings": [{"name": …, "level": …, "text": …, "command": … or null}]}
QJsonObject doctorFindings(const Findings &findings);

namespace Report {

// A line for each finding, below it what mends it, and a last line that says whether a connect can
// work.
QString doctor(const Findings &findings);

} // namespace Report

} // namespace veldmark
