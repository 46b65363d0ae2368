#pragma once

#include "base/Text.h"

#include <QString>

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

} // namespace veldmark
