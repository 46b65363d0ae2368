#pragma once

#include <QString>

namespace veldmark {

// Whether only root can replace the file or folder: it and every folder above it belong to root and
// are writable by nobody else. A folder with the sticky bit, such as /tmp, is accepted above it,
// since only owners may replace its entries. Links are followed. False when it does not exist.
bool isRootsOwn(const QString &path);

} // namespace veldmark
