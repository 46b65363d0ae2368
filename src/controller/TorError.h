#pragma once

#include "base/Text.h"

#include <optional>
#include <utility>

namespace veldmark {

// Errors of the connect sequence itself.
class TorError {
public:
    // `lastError`: the description of the last control-port error during the wait, if any.
    static TorError bootstrapTimeout(const std::optional<Text> &lastError);

    Text description() const { return m_description; }

private:
    explicit TorError(Text description) : m_description(std::move(description)) { }
    Text m_description;
};

} // namespace veldmark
