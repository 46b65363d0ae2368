#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace veldmark {

// The bytes of one connection to the control port, on their way to Tor: only commands that Veldmark
// uses pass, each with strict operands. Pure: no socket, no time. The division of the bytes over
// calls of take() does not change what Tor gets.
//
// Tor never gets a byte of any other command. It gets `refused` instead, a command that it does not
// know, so its own answer (510, or 514 and the end before the password) comes in the right order
// among the answers to other commands.
//
// A line that Tor may divide in another way, or whose next lines may be no commands (a "+", a
// control character, more than `largestLine` bytes), also ends the connection: nothing after it is
// read.
//
// Tor may be told to use bridges, but only such as were approved when it was started: the lines in
// reserve, byte for byte. Nothing lets it go without bridges again.
class CommandFilter {
public:
    enum class Verdict { passes, refused, ends };
    // Bridge lines as Tor's configuration has them, without a quote, a backslash or a control
    // character.
    using Reserve = std::vector<std::string>;

    static constexpr std::size_t largestLine = 512;    // bytes, without its end
    static constexpr std::size_t largestClimb = 16384; // of a command that names bridges
    static constexpr std::string_view refused = "FILTERED\r\n";
    static constexpr std::string_view quit = "QUIT\r\n";

    // `reserve` must outlive the object.
    explicit CommandFilter(const Reserve &reserve = none()) : m_reserve(&reserve) { }

    // `line` without its end.
    [[nodiscard]] static Verdict judge(std::string_view line, const Reserve &reserve = none());

    // Appends what Tor gets for `bytes` to `toTor`.
    void take(std::string_view bytes, std::string &toTor);

    // After a line that ends the connection. take() takes nothing more.
    [[nodiscard]] bool isOver() const { return m_isOver; }

private:
    static const Reserve &none();
    // How long the line that begins with `start` may become.
    static std::size_t limit(std::string_view start, const Reserve &reserve);
    void end(std::string &toTor);

    const Reserve *m_reserve;
    std::string m_line; // the beginning of a line; at most its limit and one byte more
    bool m_isOver = false;
};

} // namespace veldmark
