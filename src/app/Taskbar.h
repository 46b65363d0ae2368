#pragma once

class QWindow;

namespace veldmark {

// Asks the desktop to leave `window`, which is not shown yet, out of its taskbar. Does nothing
// without an X server: Wayland has no such request.
void leaveOutOfTaskbar(QWindow &window);

} // namespace veldmark
