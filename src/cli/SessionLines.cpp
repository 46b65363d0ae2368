#include "cli/SessionLines.h"

#include "cli/Console.h"
#include "cli/Report.h"
#include "controller/PublishedState.h"
#include "controller/TorController.h"

#include <utility>

namespace veldmark {

SessionLines::SessionLines(const TorController &controller)
    : m_controller(controller),
      m_progress(Console::isTerminal(), Console::width())
{
    // Queued: all fields of one change are set before the output.
    const auto follow = [this](std::initializer_list<const Field *> fields,
                               void (SessionLines::*show)()) {
        for (const Field *field : fields)
            QObject::connect(field, &Field::changed, this, show, Qt::QueuedConnection);
    };
    const TorController &c = controller;
    follow({&c.bootstrapProgress, &c.statusDetail}, &SessionLines::showProgress);
    follow({&c.bootstrapProblem}, &SessionLines::showProblem);
    follow({&c.ladder}, &SessionLines::showLadder);
    follow({&c.climbOffer}, &SessionLines::showOffer);
    follow({&c.phase, &c.isChecking}, &SessionLines::showPhase);
    follow({&c.killSwitch}, &SessionLines::showKillSwitch);
    follow({&c.dnsStatus, &c.leakStatus, &c.torVerified, &c.otherSession, &c.stall,
            &c.denyingFirewalls},
           &SessionLines::showVerdict);
    follow({&c.errorMessage}, &SessionLines::showError);
}

void SessionLines::finish()
{
    Console::draw(m_progress.finish());
}

void SessionLines::showProgress()
{
    if (m_controller.phase() == ConnectionPhase::connecting)
        Console::draw(m_progress.update(m_controller.bootstrapProgress(),
                                        m_controller.verdict().detail.translated()));
}

void SessionLines::showProblem()
{
    if (m_controller.phase() == ConnectionPhase::connecting && m_controller.bootstrapProblem())
        say(*m_controller.bootstrapProblem());
}

// Each step when it begins and when it ends.
void SessionLines::showLadder()
{
    const std::vector<LadderStep> steps = m_controller.ladder();
    const std::vector<LadderStep> former = std::exchange(m_lastSteps, steps);
    for (std::size_t at = 0; at < steps.size(); ++at) {
        if (at >= former.size() || former[at] != steps[at])
            say(Ladder::line(steps[at]));
    }
}

void SessionLines::showOffer()
{
    if (m_controller.climbOffer())
        say(Text::joined({*m_controller.climbOffer(),
                          Text::tr("Try them with: %1").arg(QStringLiteral("veldmarkctl climb"))}));
}

void SessionLines::showPhase()
{
    const ConnectionPhase phase = m_controller.phase();
    if (phase == ConnectionPhase::connecting || m_controller.isChecking()) {
        if (phase == ConnectionPhase::connecting)
            m_lastPhase = phase;
        return; // the progress line shows it, or the checks still run
    }
    if (phase == ConnectionPhase::disconnecting) {
        // checks that end with the session also call this
        if (std::exchange(m_lastPhase, phase) != phase)
            say(m_controller.statusDetail());
        return;
    }
    if (phase == ConnectionPhase::connected && m_lastPhase == ConnectionPhase::connecting)
        Console::draw(m_progress.update(1.0, Text::tr("Done").translated()));
    m_lastPhase = phase;
    QString report = phase == ConnectionPhase::connected || phase == ConnectionPhase::stale
        ? Report::status(
            inUsersLanguage(publishedState(m_controller), publishedTexts(m_controller)))
        : verdictText();
    m_lastVerdict = verdictText();
    if (report == std::exchange(m_lastReport, report))
        return;
    say(report);
    if (phase == ConnectionPhase::connected)
        say(Text::tr("Press Ctrl-C to disconnect."));
}

// Only on a change of state: a program that removes the rules again and again is reported once.
void SessionLines::showKillSwitch()
{
    const auto &rules = m_controller.killSwitch();
    const auto state = rules ? std::optional(rules->state) : std::nullopt;
    if (state == std::exchange(m_lastKillSwitch, state) || !state)
        return;
    if (m_controller.phase() == ConnectionPhase::connecting && *state == KillSwitch::State::open)
        complain(verdictText());
    else
        showPhase();
}

// Prints results of the checks while the phase stays the same, and changes of another process's
// session.
void SessionLines::showVerdict()
{
    const ConnectionPhase phase = m_controller.phase();
    const bool isShown = phase == ConnectionPhase::connected || phase == ConnectionPhase::stale;
    if (isShown && m_lastPhase == phase && m_lastVerdict != verdictText())
        showPhase();
}

// Prints a message that comes while the phase stays the same, or that no report follows.
void SessionLines::showError()
{
    const ConnectionPhase phase = m_controller.phase();
    const QString error = m_controller.errorMessage().value_or(Text()).translated();
    if (error.isEmpty())
        m_lastComplaint.clear();
    else if (phase == ConnectionPhase::disconnected && error != m_lastComplaint)
        complain(error);
    else if ((phase == ConnectionPhase::connected || phase == ConnectionPhase::stale)
             && m_lastPhase == phase && !m_lastReport.contains(error))
        showPhase();
}

QString SessionLines::verdictText() const
{
    const Verdict verdict = m_controller.verdict();
    return QStringLiteral("%1: %2").arg(verdict.title.translated(), verdict.detail.translated());
}

void SessionLines::say(const Text &text)
{
    finish();
    Console::print(text);
}

void SessionLines::complain(const Text &text)
{
    finish();
    m_lastComplaint = text.translated();
    Console::printError(text);
}

} // namespace veldmark
