#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>
#include <QVariantMap>

#include <optional>

// Handles the settings file as a file: checks whether it is valid, creates it and sets it aside.
// QSettings handles the content, but it reads damaged files without an error and overwrites lines
// that it does not understand. So every file is checked here before QSettings reads it.
namespace veldmark {

enum class SettingsFileState {
    Missing, // no file (or a link to no file): a new one may be written
    Intact,
    Damaged,    // not text, or text that is not "key=value" lines, sections and comments
    Unreadable, // no permission, a directory, a device, larger than 4 MiB
};

SettingsFileState settingsFileState(const QString &path);

// Whether QSettings reads `content` without loss: UTF-8 without control characters and byte order
// mark, in which every line is empty, a comment after ";", a "[section]" or "key=value" with its
// quotes closed on the same line. Empty content is intact.
bool isIntactSettingsText(const QByteArray &content);

// Renames the file or directory to "PATH.broken", or "PATH.broken-1" and so on when that name
// exists. Returns the new path, or nothing on failure.
std::optional<QString> setSettingsFileAside(const QString &path);

// Replaces the file by one in which every key of `keys` has its value in `values`, or is absent
// when `values` has none; all else in it stays. Atomic: a reader, or a crash, finds the old file or
// the new one, and the new one is on disk when true is returned. A new file or folder is only for
// its owner (0600, 0700); a link is followed. A file that its owner made read-only stays unchanged.
// The file must be intact or missing.
bool rewriteSettingsFile(const QString &path, const QSet<QString> &keys, const QVariantMap &values);

// Every key and value of an intact or missing file.
QVariantMap readSettingsFile(const QString &path);

} // namespace veldmark
