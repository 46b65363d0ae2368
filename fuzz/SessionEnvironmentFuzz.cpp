// The environment of another process, as the kernel shows it. veldmark-launch takes the session's
// variables from it.
#include "fuzz/Require.h"

#include "launch/SessionEnvironment.h"

#include <string>

using namespace veldmark;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view block(reinterpret_cast<const char *>(data), size);
    for (const std::string &entry : sessionVariables(block)) {
        const auto equals = entry.find('=');
        REQUIRE(equals != std::string::npos && equals > 0);
        const std::string name = entry.substr(0, equals);
        REQUIRE(isSessionVariable(name) && name.find('\0') == std::string::npos);
        REQUIRE(name.rfind("LD_", 0) != 0);
    }
    return 0;
}
