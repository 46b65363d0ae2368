#include "controlfilter/ReserveFile.h"

#include <algorithm>
#include <cerrno>
#include <fstream>

namespace veldmark {

namespace {

// The helper's own limits (resources/helper/options.sh).
constexpr std::size_t mostLines = 100;
constexpr std::size_t longestLine = 4096;

bool isBridge(const std::string &line)
{
    return !line.empty() && line.size() <= longestLine
        && std::all_of(line.begin(), line.end(),
                       [](char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; });
}

} // namespace

std::optional<CommandFilter::Reserve> readReserve(const char *path)
{
    std::ifstream file(path);
    if (!file)
        return std::nullopt;
    CommandFilter::Reserve lines;
    for (std::string line; std::getline(file, line);) {
        if (!isBridge(line) || lines.size() == mostLines) {
            errno = EINVAL;
            return std::nullopt;
        }
        lines.push_back(line);
    }
    if (file.bad())
        return std::nullopt;
    return lines;
}

} // namespace veldmark
