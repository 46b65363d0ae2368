#pragma once

#include "cli/Arguments.h"
#include "doctor/Finding.h"

#include <QJsonObject>

#include <qcorotask.h>

namespace veldmark {

struct PlatformProfile;

// `veldmarkctl doctor`: examines this computer, with or without a running instance. Fails unless a
// connect can work, as far as that is known without the network.
QCoro::Task<ExitStatus> showDoctor(Invocation invocation, PlatformProfile profile);

// {"canConnect": bool, or null when unknown,
//  "findings": [{"name": …, "level": …, "text": …, "command": … or null}]}
QJsonObject doctorFindings(const Findings &findings);

namespace Report {

// One line per finding, its remedy below it, and a last line that says whether a connect can work.
QString doctor(const Findings &findings);

} // namespace Report

} // namespace veldmark
