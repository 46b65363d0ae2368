#pragma once

#include "base/Text.h"

#include <utility>

namespace veldmark {

// Why the running instance did not carry out a command.
class InstanceError {
public:
    explicit InstanceError(Text description, bool isUsage = false)
        : m_description(std::move(description)),
          m_isUsage(isUsage)
    {
    }

    Text description() const { return m_description; } // one line
    // The request itself is wrong (an unknown setting or value), so repeating it is useless.
    bool isUsage() const { return m_isUsage; }

private:
    Text m_description;
    bool m_isUsage;
};

} // namespace veldmark
