#pragma once

#include "base/Text.h"

#include <QString>

#include <functional>
#include <optional>

namespace veldmark {

// How a menu bar program behaves on a Mac's desktop. On other systems whenLaunched() calls `then`
// at once and the other functions do nothing, since those desktops are reached in other ways. Main
// thread, after the QApplication exists.

// The program has no place in the Dock. comeToFront() brings its windows to the front, which the
// system does not do by itself.
void becomeMenuBarProgram();
void comeToFront();

// Calls `then` once the system has said why it started the program, which needs a running event
// loop. `atLogin` is true when the program was started as a login item.
void whenLaunched(std::function<void(bool atLogin)> then);
// Calls `then` whenever the user opens the running program again. Needs whenLaunched().
void whenReopened(std::function<void()> then);

// Calls `then` when the system asks the program to end: at logout, at shutdown, and for Quit in its
// menus. The system then waits for answerToEnd(). Without this it gets an answer of Qt's, which
// calls a logout off.
void whenAskedToEnd(std::function<void()> then);
// Answers the system. Returns false where it has not asked. The system ends the program within a
// call with `ends`, so nothing that follows it runs.
bool answerToEnd(bool ends);

// While it is on, the system does not slow the program down for having no window. The computer may
// still go to sleep.
void keepAwake(bool on);

// What the user has to do first where the system runs a bundle from a place that it has made up,
// as it does where a downloaded one is opened in place. Login items and the command that restores
// the network name another place then.
std::optional<Text> misplaced();

// Shows a notification of the system.
void showNotice(const QString &title, const QString &text);

} // namespace veldmark
