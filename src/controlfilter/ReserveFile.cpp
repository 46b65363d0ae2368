#include "controlfilter/ReserveFile.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include <unistd.h>

namespace veldmark {

namespace {

// The helper's own limits (resources/helper/options.sh).
constexpr std::size_t mostLines = 100;
constexpr std::size_t longestLine = 4096;

bool isBridge(std::string_view line)
{
    return !line.empty() && line.size() <= longestLine
        && std::all_of(line.begin(), line.end(),
                       [](char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; });
}

// Up to the end, or to a byte more than can be of use.
std::optional<std::string> readAll(int descriptor)
{
    std::string text;
    std::array<char, 4096> piece;
    while (text.size() <= mostLines * (longestLine + 1)) {
        const ssize_t got = read(descriptor, piece.data(), piece.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return std::nullopt;
        if (got == 0)
            break;
        text.append(piece.data(), static_cast<std::size_t>(got));
    }
    return text;
}

} // namespace

std::optional<CommandFilter::Reserve> readReserve(int descriptor)
{
    const auto text = readAll(descriptor);
    if (!text)
        return std::nullopt;
    CommandFilter::Reserve lines;
    for (std::string_view rest = *text; !rest.empty();) {
        const std::size_t end = rest.find('\n');
        const std::string_view line = rest.substr(0, end);
        if (!isBridge(line) || lines.size() == mostLines) {
            errno = EINVAL;
            return std::nullopt;
        }
        lines.emplace_back(line);
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    return lines;
}

} // namespace veldmark
