#pragma once

namespace veldmark {

// A program that lives in the menu bar of a Mac has no place in the Dock, and its windows come to the front only when
// it asks for that. Elsewhere both do nothing. Main thread, after the QApplication is there.
void becomeMenuBarProgram();
void comeToFront();

} // namespace veldmark
