// What a program says at the control port: Tor gets whole commands that pass, and nothing else.
#include "fuzz/Require.h"

#include "controlfilter/CommandFilter.h"

#include <string>

using namespace veldmark;

namespace {
const CommandFilter::Reserve reserve = {"192.0.2.2:443", "obfs4 192.0.2.1:443 cert=a iat-mode=0"};
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // The first byte is the size of the pieces.
    const std::size_t piece = size == 0 ? 1 : data[0] % 16 + 1;
    const std::string_view all(reinterpret_cast<const char *>(data) + (size == 0 ? 0 : 1),
                               size == 0 ? 0 : size - 1);
    CommandFilter whole(reserve);
    CommandFilter divided(reserve);
    std::string toTor;
    std::string again;
    whole.take(all, toTor);
    for (std::size_t at = 0; at < all.size(); at += piece)
        divided.take(all.substr(at, piece), again);
    REQUIRE(toTor == again);
    REQUIRE(whole.isOver() == divided.isOver());
    for (std::string_view rest = toTor; !rest.empty();) {
        const std::size_t end = rest.find("\r\n");
        REQUIRE(end != std::string_view::npos);
        const std::string_view line = rest.substr(0, end + 2);
        rest.remove_prefix(end + 2);
        for (const char c : line.substr(0, end))
            REQUIRE(c >= ' ' && c <= '~');
        REQUIRE(line == CommandFilter::refused
                || CommandFilter::judge(line.substr(0, end), reserve)
                    == CommandFilter::Verdict::passes);
        // A bridge is one of those in reserve. In a password the word means nothing.
        if (line.substr(0, 13) == "AUTHENTICATE ")
            continue;
        for (std::size_t at = 0; (at = line.find("Bridge=", at)) != std::string_view::npos; ++at) {
            const std::string_view bridge = line.substr(at + 7, line.find('"', at + 8) - at - 6);
            REQUIRE(bridge == '"' + reserve[0] + '"' || bridge == '"' + reserve[1] + '"');
        }
    }
    return 0;
}
