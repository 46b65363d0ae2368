#pragma once

#include "base/Text.h"

#include <utility>

namespace veldmark {

// Why the chosen bridges cannot be used. The only kind is `unavailable`. Its text is the whole
// sentence, shown to the user unchanged.
class BridgeError {
public:
    static BridgeError unavailable(Text text) { return BridgeError(std::move(text)); }

    Text description() const { return m_text; }

    friend bool operator==(const BridgeError &, const BridgeError &) = default;

private:
    explicit BridgeError(Text text) : m_text(std::move(text)) { }
    Text m_text;
};

} // namespace veldmark
