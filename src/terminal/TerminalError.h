#pragma once

#include "base/Text.h"

namespace veldmark {

// Why a file of the user could not be changed: one sentence that names the file. It follows
// "Couldn't set up terminal mode: " or "Couldn't remove terminal integration: ".
struct TerminalError {
    Text text;

    Text description() const { return text; }
    friend bool operator==(const TerminalError &, const TerminalError &) = default;
};

} // namespace veldmark
