#pragma once

#include "base/Text.h"

namespace veldmark::Console {

// Prints whole lines on standard output and messages on standard error, in the user's language.
// UTF-8, flushed at once.
void print(const Text &text);
void printError(const Text &text);

// Prints text without a line end, for a line that is redrawn.
void draw(const QString &text);

// Whether standard output is a terminal that can redraw a line.
bool isTerminal();
// Columns of the terminal on standard output; 80 when unknown.
int width();

} // namespace veldmark::Console
