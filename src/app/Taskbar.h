#pragma once

class QWindow;

namespace veldmark {

// Asks the desktop not to list `window`, which is not on show, in its taskbar. Where the display is
// no X server it does nothing: Wayland has no such word.
void leaveOutOfTaskbar(QWindow &window);

} // namespace veldmark
