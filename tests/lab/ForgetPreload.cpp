// Preloaded together with another library, so that only the program itself has both, and not its
// children.

#include <cstdlib>

namespace {

struct Forget {
    Forget() { ::unsetenv("LD_PRELOAD"); }
} const forget;

} // namespace
