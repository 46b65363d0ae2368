#pragma once

#include <QString>

namespace veldmark {

// Words of the user, of a file or of another program, made safe for one line of a message: at most
// `limit` characters, single blanks, and "?" for what is not printable, as a terminal's escape.
QString inOneLine(const QString &words, qsizetype limit = 60);

} // namespace veldmark
