#pragma once

#include "base/Text.h"

#include <utility>

namespace veldmark {

// Why the running instance did not do what it was asked.
class InstanceError {
public:
    explicit InstanceError(Text description, bool isUsage = false)
        : m_description(std::move(description)),
          m_isUsage(isUsage)
    {
    }

    Text description() const { return m_description; } // one line
    // The request itself was wrong (a setting or a value that does not exist): asking again is no
    // use.
    bool isUsage() const { return m_isUsage; }

private:
    Text m_description;
    bool m_isUsage;
};

} // namespace veldmark
