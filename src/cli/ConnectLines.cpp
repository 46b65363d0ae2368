#include "cli/ConnectLines.h"

#include "cli/Console.h"
#include "cli/Report.h"

#include <algorithm>
#include <utility>

namespace veldmark {

ConnectLines::ConnectLines() : m_progress(Console::isTerminal(), Console::width()) { }

void ConnectLines::show(const QJsonObject &state)
{
    const bool isConnecting = state.value(QStringLiteral("phase")) == QLatin1String("connecting");
    m_hasBegun = m_hasBegun || isConnecting;
    if (!m_hasBegun)
        return;
    if (isConnecting) {
        Console::draw(m_progress.update(state.value(QStringLiteral("bootstrapProgress")).toDouble(),
                                        state.value(QStringLiteral("statusDetail")).toString()));
        sayNew(m_problem, state.value(QStringLiteral("bootstrapProblem")).toString());
    }
    const QStringList steps = Report::steps(state);
    m_steps.resize(std::max(m_steps.size(), steps.size()));
    for (qsizetype at = 0; at < steps.size(); ++at)
        sayNew(m_steps[at], steps[at]);
    sayNew(m_offer, Report::offer(state));
}

void ConnectLines::finish()
{
    Console::draw(m_progress.finish());
}

void ConnectLines::sayNew(QString &former, const QString &text)
{
    if (text == std::exchange(former, text) || text.isEmpty())
        return;
    finish();
    Console::print(text);
}

} // namespace veldmark
