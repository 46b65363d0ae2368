#pragma once

#include <utility>

#include <unistd.h>

namespace veldmark {

// Owns a file descriptor; -1 means none.
class Descriptor {
public:
    explicit Descriptor(int number = -1) : m_number(number) { }
    Descriptor(Descriptor &&other) noexcept : m_number(std::exchange(other.m_number, -1)) { }
    Descriptor &operator=(Descriptor &&other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~Descriptor() { close(); }
    // False when the kernel reports an error, as of writing; the descriptor is gone all the same.
    bool close() { return m_number < 0 || ::close(std::exchange(m_number, -1)) == 0; }
    [[nodiscard]] int number() const { return m_number; }
    explicit operator bool() const { return m_number >= 0; }

private:
    int m_number;
};

} // namespace veldmark
