#pragma once

#include "base/Text.h"

#include <QString>

#include <optional>
#include <vector>

namespace veldmark {

// An exit country that the user can choose; its identity is `code`.
struct ExitCountry {
    QString code; // two lower-case letters; empty = any
    Text name;

    bool operator==(const ExitCountry &other) const { return code == other.code; }
    // In the picker's order.
    static const std::vector<ExitCountry> &all();
    // Whether `code` is empty (any country) or exactly two lower-case letters.
    static bool isValid(const QString &code);
};

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
