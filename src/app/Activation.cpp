#include "app/Activation.h"

namespace veldmark {

void becomeMenuBarProgram() {}
void comeToFront() {}

} // namespace veldmark
