#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// A property that must hold for every input. Otherwise libFuzzer keeps the input that broke it.
#define REQUIRE(condition)                                                                         \
    do {                                                                                           \
        if (!(condition)) {                                                                        \
            std::fprintf(stderr, "%s:%d: not true: %s\n", __FILE__, __LINE__, #condition);         \
            std::abort();                                                                          \
        }                                                                                          \
    } while (false)

namespace veldmark {

inline QByteArray bytesOf(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)};
}

inline QString textOf(const std::uint8_t *data, std::size_t size)
{
    return QString::fromUtf8(bytesOf(data, size));
}

// Words from outside that go into commands and onto the screen: printable ASCII without blanks.
inline bool isPrintableWord(QStringView text)
{
    for (const QChar c : text) {
        if (c <= u' ' || c > u'~')
            return false;
    }
    return !text.isEmpty();
}

} // namespace veldmark
