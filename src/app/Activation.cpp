#include "app/Activation.h"

namespace veldmark {

void becomeMenuBarProgram() { }
void comeToFront() { }
void whenLaunched(std::function<void(bool atLogin)> then)
{
    then(false);
}
void whenReopened(std::function<void()>) { }
void whenAskedToEnd(std::function<void()>) { }
bool answerToEnd(bool)
{
    return false;
}
void keepAwake(bool) { }
std::optional<Text> misplaced()
{
    return std::nullopt;
}
void showNotice(const QString &, const QString &) { }

} // namespace veldmark
