#pragma once

#include "base/ConnectionPhase.h"
#include "base/Text.h"
#include "checks/KillSwitch.h"
#include "cli/ProgressLine.h"

#include <QObject>

#include <optional>

namespace veldmark {

class TorController;

// What `veldmarkctl run` prints of the session while it lives, each change once: the progress of a
// connect on a line that is drawn over and over, reports and warnings on lines of their own. Main
// thread.
class SessionLines : public QObject {
    Q_OBJECT

public:
    // `controller` must outlive the object.
    explicit SessionLines(const TorController &controller);

    // A line on standard output, or a message on standard error, below the progress line.
    void say(const Text &text);
    void complain(const Text &text);
    // The session as it is now, unless it was the last thing to be said.
    void showPhase();
    // Ends the progress line.
    void finish();

private:
    void showProgress();
    void showProblem();
    void showKillSwitch();
    void showVerdict();
    QString verdictText() const;

    const TorController &m_controller;
    ProgressLine m_progress;
    QString m_lastReport;
    QString m_lastVerdict;
    ConnectionPhase m_lastPhase = ConnectionPhase::disconnected;
    std::optional<KillSwitch::State> m_lastKillSwitch;
};

} // namespace veldmark
