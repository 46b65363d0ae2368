#pragma once

#include <QString>

#include <functional>

namespace veldmark {

// What a Mac's desktop wants of a program that lives in its menu bar. Elsewhere whenLaunched()
// calls at once and the others do nothing, since the desktop is spoken to in other ways. Main
// thread, after the QApplication is there.

// It has no place in the Dock, and its windows come to the front only when it asks for that.
void becomeMenuBarProgram();
void comeToFront();

// Calls `then` once the system has said why it has started the program, which is not before the
// event loop turns: `atLogin` is true where it was a login item.
void whenLaunched(std::function<void(bool atLogin)> then);
// Calls `then` whenever somebody opens the running program again.
void whenReopened(std::function<void()> then);

// While it is on, the system does not slow the program down for having no window. The computer may
// still go to sleep.
void keepAwake(bool on);

// A notification of the system's.
void showNotice(const QString &title, const QString &text);

} // namespace veldmark
