#include "StandInDesktop.h"

#include "app/Activation.h"

#include <utility>

// The linker takes these in place of those in the room's library.
namespace veldmark {

void becomeMenuBarProgram() { }
void comeToFront() { }

void whenLaunched(std::function<void(bool atLogin)> then)
{
    if (StandInDesktop::present)
        StandInDesktop::present->launched = std::move(then);
    else
        then(false);
}

void whenReopened(std::function<void()> then)
{
    if (StandInDesktop::present)
        StandInDesktop::present->reopened = std::move(then);
}

void whenAskedToEnd(std::function<void()> then)
{
    if (StandInDesktop::present)
        StandInDesktop::present->askedToEnd = std::move(then);
}

bool answerToEnd(bool ends)
{
    if (!StandInDesktop::present || !std::exchange(StandInDesktop::present->waits, false))
        return false;
    StandInDesktop::present->ends = ends;
    return true;
}

void keepAwake(bool on)
{
    if (StandInDesktop::present
        && (StandInDesktop::present->awake.isEmpty()
            || StandInDesktop::present->awake.constLast() != on))
        StandInDesktop::present->awake.append(on);
}

std::optional<Text> misplaced()
{
    return StandInDesktop::present ? StandInDesktop::present->misplaced : std::nullopt;
}

void showNotice(const QString &title, const QString &)
{
    if (StandInDesktop::present)
        StandInDesktop::present->notices.append(title);
}

} // namespace veldmark
