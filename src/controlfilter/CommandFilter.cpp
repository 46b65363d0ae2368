#include "controlfilter/CommandFilter.h"

#include <algorithm>
#include <array>

#include <arpa/inet.h>
#include <netinet/in.h>

namespace veldmark {

namespace {

constexpr std::size_t fingerprintDigits = 40;
constexpr std::size_t circuitDigits = 10; // Tor's numbers have 32 bits
constexpr std::size_t longestPassword = 128;
constexpr int mostKeys = 8;

constexpr std::array<std::string_view, 6> plainKeys = {
    "circuit-status",  "stream-status",          "traffic/read",
    "traffic/written", "status/bootstrap-phase", "status/circuit-established",
};

constexpr std::array<std::string_view, 5> plainCommands = {
    "SIGNAL NEWNYM", "SETEVENTS STREAM", "SETCONF DisableNetwork=0", "SETCONF DisableNetwork=1",
    "QUIT",
};

// Removes `start` from the beginning of `text`, if it is there.
bool takeStart(std::string_view &text, std::string_view start)
{
    if (text.substr(0, start.size()) != start)
        return false;
    text.remove_prefix(start.size());
    return true;
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isHexadecimal(char c)
{
    return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool isAddress(std::string_view text)
{
    const std::string address(text);
    in6_addr parsed{};
    return inet_pton(AF_INET, address.c_str(), &parsed) == 1
        || inet_pton(AF_INET6, address.c_str(), &parsed) == 1;
}

bool isKey(std::string_view key)
{
    if (takeStart(key, "ns/id/"))
        return key.size() == fingerprintDigits
            && std::all_of(key.begin(), key.end(), isHexadecimal);
    if (takeStart(key, "ip-to-country/"))
        return isAddress(key);
    return std::find(plainKeys.begin(), plainKeys.end(), key) != plainKeys.end();
}

bool areKeys(std::string_view keys)
{
    for (int many = 1; many <= mostKeys; ++many) {
        const std::size_t end = keys.find(' ');
        if (!isKey(keys.substr(0, end)))
            return false;
        if (end == std::string_view::npos)
            return true;
        keys.remove_prefix(end + 1);
    }
    return false;
}

// In quotes, without a character that would need an escape.
bool isPassword(std::string_view text)
{
    if (text.size() < 2 || text.size() > longestPassword + 2 || text.front() != '"'
        || text.back() != '"')
        return false;
    const std::string_view password = text.substr(1, text.size() - 2);
    return password.find_first_of("\"\\") == std::string_view::npos;
}

constexpr std::string_view climb = "SETCONF UseBridges=1 Bridge=\"";

// The rest of a command after `climb`: LINE" Bridge="LINE" …
bool areReserved(std::string_view rest, const CommandFilter::Reserve &reserve)
{
    for (;;) {
        const std::size_t end = rest.find('"');
        if (end == std::string_view::npos
            || std::find(reserve.begin(), reserve.end(), rest.substr(0, end)) == reserve.end())
            return false;
        rest.remove_prefix(end + 1);
        if (rest.empty())
            return true;
        if (!takeStart(rest, " Bridge=\""))
            return false;
    }
}

bool isUsed(std::string_view line, const CommandFilter::Reserve &reserve)
{
    if (takeStart(line, climb))
        return areReserved(line, reserve);
    if (takeStart(line, "AUTHENTICATE "))
        return isPassword(line);
    if (takeStart(line, "GETINFO "))
        return areKeys(line);
    if (takeStart(line, "CLOSECIRCUIT "))
        return !line.empty() && line.size() <= circuitDigits
            && std::all_of(line.begin(), line.end(), isDigit);
    return std::find(plainCommands.begin(), plainCommands.end(), line) != plainCommands.end();
}

} // namespace

CommandFilter::Verdict CommandFilter::judge(std::string_view line, const Reserve &reserve)
{
    const auto isPrintable = [](char c) { return c >= ' ' && c <= '~'; };
    if (line.size() > limit(line, reserve) || line.substr(0, 1) == "+"
        || !std::all_of(line.begin(), line.end(), isPrintable))
        return Verdict::ends;
    return isUsed(line, reserve) ? Verdict::passes : Verdict::refused;
}

const CommandFilter::Reserve &CommandFilter::none()
{
    static const Reserve empty;
    return empty;
}

std::size_t CommandFilter::limit(std::string_view start, const Reserve &reserve)
{
    return !reserve.empty() && takeStart(start, climb) ? largestClimb : largestLine;
}

void CommandFilter::take(std::string_view bytes, std::string &toTor)
{
    while (!m_isOver && !bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        const std::string_view piece = bytes.substr(0, end);
        m_line += piece;
        // One byte more may be the first half of the line's end.
        if (m_line.size() > limit(m_line, *m_reserve) + 1)
            return this->end(toTor);
        if (end == std::string_view::npos)
            return;
        bytes.remove_prefix(end + 1);
        std::string_view line = m_line;
        if (line.substr(line.empty() ? 0 : line.size() - 1) == "\r")
            line.remove_suffix(1);
        switch (judge(line, *m_reserve)) {
        case Verdict::passes:
            toTor.append(line).append("\r\n");
            break;
        case Verdict::refused:
            toTor.append(refused);
            break;
        case Verdict::ends:
            return this->end(toTor);
        }
        m_line.clear();
    }
}

void CommandFilter::end(std::string &toTor)
{
    m_isOver = true;
    m_line.clear();
    toTor.append(refused).append(quit);
}

} // namespace veldmark
