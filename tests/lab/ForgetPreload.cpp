// Preloaded beside another library, so that only the program itself has both and not what it
// starts.

#include <cstdlib>

namespace {

struct Forget {
    Forget() { ::unsetenv("LD_PRELOAD"); }
} const forget;

} // namespace
