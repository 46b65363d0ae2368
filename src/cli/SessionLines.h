#pragma once

#include "base/ConnectionPhase.h"
#include "base/Text.h"
#include "bridges/Ladder.h"
#include "checks/KillSwitch.h"
#include "cli/ProgressLine.h"

#include <QObject>

#include <optional>
#include <vector>

namespace veldmark {

class TorController;

// Prints the session for `veldmarkctl run`, each change once: the progress of a connect on a
// redrawn line, reports and warnings on separate lines. Main thread.
class SessionLines : public QObject {
    Q_OBJECT

public:
    // `controller` must outlive the object.
    explicit SessionLines(const TorController &controller);

    // Prints a line on standard output, or a message on standard error, below the progress line.
    void say(const Text &text);
    void complain(const Text &text);
    // Prints the current state of the session, unless it equals the last report.
    void showPhase();
    // Ends the progress line.
    void finish();

private:
    void showProgress();
    void showProblem();
    void showLadder();
    void showOffer();
    void showKillSwitch();
    void showVerdict();
    void showError();
    QString verdictText() const;

    const TorController &m_controller;
    ProgressLine m_progress;
    QString m_lastReport;
    QString m_lastVerdict;
    QString m_lastComplaint;
    std::vector<LadderStep> m_lastSteps;
    ConnectionPhase m_lastPhase = ConnectionPhase::disconnected;
    std::optional<KillSwitch::State> m_lastKillSwitch;
};

} // namespace veldmark
