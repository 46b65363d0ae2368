#pragma once

#include "base/Text.h"

namespace veldmark::Console {

// Whole lines on standard output, and messages on standard error, in the user's language. UTF-8,
// flushed at once.
void print(const Text &text);
void printError(const Text &text);

// Text without a line end, for a line that is drawn over and over.
void draw(const QString &text);

// Whether standard output is a terminal that can redraw a line.
bool isTerminal();
// Columns of the terminal on standard output; 80 where that cannot be told.
int width();

} // namespace veldmark::Console
