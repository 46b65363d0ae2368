#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>
#include <QVariantMap>

#include <optional>

// The settings file as a file: whether it can be trusted, and how it is created and put out of the
// way. Its content is QSettings' business, but QSettings reads damaged files without complaint
// and writes over what it did not understand; so every file is judged here before QSettings sees
// it.
namespace veldmark {

enum class SettingsFileState {
    Missing, // nothing there (or a link to nothing): a new one may be written
    Intact,
    Damaged,    // not text, or text that is not "key=value" lines, sections and comments
    Unreadable, // no permission, a directory, a device, larger than 4 MiB
};

SettingsFileState settingsFileState(const QString &path);

// Whether `content` is something that QSettings reads back without loss: UTF-8 without control
// characters and byte order mark, in which every line is empty, a comment behind ";", a "[section]"
// or "key=value" with its quotes closed on the same line. Empty content is intact.
bool isIntactSettingsText(const QByteArray &content);

// Renames the file or directory to "PATH.broken", or "PATH.broken-1" and so on where that is
// taken. Gives the new path, or nothing when it could not be renamed.
std::optional<QString> setSettingsFileAside(const QString &path);

// Replaces the file by one in which every key of `keys` has its value in `values`, or is absent
// where `values` has none; everything else in it stays. Atomic: a reader, or a crash, finds the
// old file or the new one, and the new one is on disk when true is returned. A file or folder that
// had to be created is for its owner only (0600, 0700); a link is followed. A file that its owner
// made read-only is left alone. The file must be intact or missing.
bool rewriteSettingsFile(const QString &path, const QSet<QString> &keys, const QVariantMap &values);

// Every key and value of an intact or missing file.
QVariantMap readSettingsFile(const QString &path);

} // namespace veldmark
