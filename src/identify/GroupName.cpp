#include "identify/GroupName.h"

#include <algorithm>
#include <array>
#include <vector>

namespace veldmark {

namespace {

constexpr std::string_view hexDigits = "0123456789abcdef";

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

int hexValue(char c)
{
    if (isDigit(c))
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

bool isHex(std::string_view text)
{
    return !text.empty()
        && std::all_of(text.begin(), text.end(), [](char c) { return hexValue(c) >= 0; });
}

// systemd writes bytes that a unit's name may not have, and "-" inside a word, as \xNN.
std::string unescaped(std::string_view text)
{
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\\' && at + 3 < text.size() && text[at + 1] == 'x'
            && hexValue(text[at + 2]) >= 0 && hexValue(text[at + 3]) >= 0) {
            plain += static_cast<char>(hexValue(text[at + 2]) * 16 + hexValue(text[at + 3]));
            at += 3;
        } else {
            plain += text[at];
        }
    }
    return plain;
}

std::string printable(std::string_view text)
{
    constexpr std::string_view others = "._:@+-";
    std::string safe;
    for (const char c : text) {
        if (isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')
            || others.find(c) != std::string_view::npos) {
            safe += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            safe += {'\\', 'x', hexDigits[byte / 16], hexDigits[byte % 16]};
        }
    }
    return safe;
}

bool takeSuffix(std::string_view &text, std::string_view suffix)
{
    if (text.size() <= suffix.size() || text.substr(text.size() - suffix.size()) != suffix)
        return false;
    text.remove_suffix(suffix.size());
    return true;
}

// A number, or at least eight hexadecimal digits: part of an application's id hardly looks like
// that.
bool tellsStartsApart(std::string_view word)
{
    return (!word.empty() && std::all_of(word.begin(), word.end(), isDigit))
        || (word.size() >= 8 && isHex(word));
}

bool isUuid(std::string_view text)
{
    constexpr std::array<std::size_t, 4> dashes = {8, 13, 18, 23};
    if (text.size() != 36)
        return false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool dash = std::find(dashes.begin(), dashes.end(), at) != dashes.end();
        if (dash ? text[at] != '-' : hexValue(text[at]) < 0)
            return false;
    }
    return true;
}

std::string ofSnap(std::string_view stem)
{
    constexpr std::size_t uuid = 36;
    if (stem.size() > uuid + 1 && isUuid(stem.substr(stem.size() - uuid))) {
        const char before = stem[stem.size() - uuid - 1];
        if (before == '-' || before == '.')
            stem.remove_suffix(uuid + 1);
    }
    return unescaped(stem);
}

// "dbus-:1.2-org.example.Name": the bus name that the bus has started the program for.
std::string_view ofBus(std::string_view stem)
{
    const std::size_t dash = stem.find('-', std::string_view("dbus-").size());
    return dash == std::string_view::npos || dash + 1 == stem.size() ? stem : stem.substr(dash + 1);
}

std::string ofStem(std::string_view stem, int depth);

// "app[-LAUNCHER]-ID[-START]"; LAUNCHER and ID have no unescaped "-".
std::string ofApplication(std::string_view stem, int depth)
{
    std::vector<std::string_view> words;
    for (std::string_view rest = stem.substr(std::string_view("app-").size());;) {
        const std::size_t dash = rest.find('-');
        words.push_back(rest.substr(0, dash));
        if (dash == std::string_view::npos)
            break;
        rest.remove_prefix(dash + 1);
    }
    if (words.size() > 1 && tellsStartsApart(words.back()))
        words.pop_back();
    const bool named = words.size() > 1 && words.front() == "veldmark";
    if (words.size() > 1)
        words.erase(words.begin());
    std::string id;
    for (const std::string_view word : words)
        id += (id.empty() ? "" : "-") + unescaped(word);
    if (named)
        return "as:" + id;
    // The slice of a service with instances has the name of the whole service.
    return depth > 0 ? id : ofStem(id, depth + 1);
}

std::string ofStem(std::string_view stem, int depth)
{
    if (stem.substr(0, 5) == "snap.")
        return ofSnap(stem);
    if (stem.substr(0, 6) == "dbus-:")
        return unescaped(ofBus(stem));
    if (stem.size() > 4 && stem.substr(0, 4) == "app-")
        return ofApplication(stem, depth);
    return depth > 0 ? std::string(stem) : unescaped(stem);
}

} // namespace

std::string applicationOf(std::string_view group)
{
    std::string_view stem = group;
    if (takeSuffix(stem, ".service"))
        stem = stem.substr(0, stem.find('@', 1));
    else if (!takeSuffix(stem, ".scope") && !takeSuffix(stem, ".slice"))
        return {};
    const std::string id = printable(ofStem(stem, 0));
    return id.empty() ? printable(stem) : id;
}

std::string loginSessionOf(std::string_view group)
{
    constexpr std::string_view start = "session-";
    std::string_view stem = group;
    if (!takeSuffix(stem, ".scope") || stem.size() <= start.size()
        || stem.substr(0, start.size()) != start)
        return {};
    return printable(stem);
}

} // namespace veldmark
