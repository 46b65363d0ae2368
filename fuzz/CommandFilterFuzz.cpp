// What a program says at the control port: Tor gets whole commands that pass, and nothing else.
#include "fuzz/Require.h"

#include "controlfilter/CommandFilter.h"

#include <string>

using namespace veldmark;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // The first byte is the size of the pieces.
    const std::size_t piece = size == 0 ? 1 : data[0] % 16 + 1;
    const std::string_view all(reinterpret_cast<const char *>(data) + (size == 0 ? 0 : 1),
                               size == 0 ? 0 : size - 1);
    CommandFilter whole;
    CommandFilter divided;
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
                || CommandFilter::judge(line.substr(0, end)) == CommandFilter::Verdict::passes);
    }
    return 0;
}
