#include "system/SettingsFile.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace veldmark {

namespace {

constexpr qint64 largestFileBytes = 4 * 1024 * 1024;

struct Line {
    QByteArrayView said;     // without a comment at its end
    qsizetype equalsAt = -1; // the first equals sign that is neither quoted nor after a backslash
};

// Parses a line as QSettings does. Absent when the line continues: after an open quote or a
// backslash at the end QSettings appends the next line.
std::optional<Line> readLine(QByteArrayView text)
{
    Line line{text};
    bool quoted = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == '"') {
            quoted = !quoted;
        } else if (text[i] == ';' && !quoted) {
            line.said = text.first(i).trimmed();
            return line;
        } else if (text[i] == '=' && !quoted && line.equalsAt < 0) {
            line.equalsAt = i;
        } else if (text[i] == '\\' && ++i == text.size()) {
            return std::nullopt;
        }
    }
    return quoted ? std::nullopt : std::optional(line);
}

bool isIntactLine(QByteArrayView text)
{
    const std::optional<Line> line = readLine(text);
    if (!line)
        return false;
    if (line->said.startsWith('['))
        return line->said.indexOf(']') == line->said.size() - 1;
    return line->said.isEmpty() || line->equalsAt > 0;
}

// Finds errors that show only when QSettings reads the file: a key with an empty part ("/a",
// "a//b"), which QSettings would write under another name, and half of a surrogate pair ("\xd800"),
// which it would write as another character. QSettings' status is not reliable: for a file that it
// has read before and that is unchanged, it reports no error a second time.
bool isReadWhole(const QString &path)
{
    const QSettings settings(path, QSettings::IniFormat);
    const QStringList keys = settings.allKeys();
    return settings.status() == QSettings::NoError
        && std::all_of(keys.begin(), keys.end(), [&settings](const QString &key) {
               return key.split(u'/', Qt::SkipEmptyParts).join(u'/') == key
                   && settings.value(key).toStringList().join(u' ').isValidUtf16();
           });
}

bool isWritable(const QString &path)
{
    return QFile(path).open(QIODevice::ReadWrite | QIODevice::ExistingOnly);
}

// Only the user may read their own folders.
bool makeFolder(const QString &path)
{
    if (QFileInfo(path).isDir())
        return true;
    const QString parent = QFileInfo(path).path();
    if (parent != path && !makeFolder(parent))
        return false;
    return ::mkdir(QFile::encodeName(path).constData(), 0700) == 0 || errno == EEXIST;
}

// A copy of `original` (empty when that is missing) under a new name in the same folder.
std::optional<QString> copyBeside(const QFileInfo &original)
{
    QByteArray content;
    if (original.exists()) {
        QFile file(original.filePath());
        if (!file.open(QIODevice::ReadOnly))
            return std::nullopt;
        content = file.readAll();
    }
    QByteArray name = QFile::encodeName(original.filePath()) + ".XXXXXX";
    QFile copy;
    const int descriptor = ::mkstemp(name.data()); // mode 0600
    if (descriptor < 0)
        return std::nullopt;
    const bool opened = copy.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle);
    const bool copied = opened && copy.write(content) == content.size() && copy.flush()
        && (!original.exists() || copy.setPermissions(original.permissions()));
    copy.close();
    const QString path = QFile::decodeName(name);
    if (copied)
        return path;
    QFile::remove(path);
    return std::nullopt;
}

bool writeKeys(const QString &path, const QSet<QString> &keys, const QVariantMap &values)
{
    QSettings settings(path, QSettings::IniFormat);
    for (const QString &key : keys) {
        if (values.contains(key))
            settings.setValue(key, values.value(key));
        else
            settings.remove(key);
    }
    settings.sync();
    return settings.status() == QSettings::NoError;
}

// QSettings detects a changed file by its size and its modification time in milliseconds, which may
// be equal for two quick writes.
void keepDistinctTime(const QString &changed, const QFileInfo &original)
{
    const QDateTime before = original.lastModified();
    QFile file(changed);
    if (original.exists() && QFileInfo(changed).lastModified() <= before
        && file.open(QIODevice::ReadWrite)) {
        file.setFileTime(before.addMSecs(1), QFileDevice::FileModificationTime);
    }
}

// The rename is on disk only after the folder is synced.
void syncFolder(const QString &path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(),
                                  O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        ::fsync(descriptor);
        ::close(descriptor);
    }
}

} // namespace

SettingsFileState settingsFileState(const QString &path)
{
    const QFileInfo info(path);
    // In a folder that can't be entered every file looks missing; errno shows the difference.
    struct stat found { };
    if (::stat(QFile::encodeName(path).constData(), &found) != 0) {
        return errno == ENOENT || errno == ENOTDIR ? SettingsFileState::Missing
                                                   : SettingsFileState::Unreadable;
    }
    if (!info.isFile() || info.size() > largestFileBytes)
        return SettingsFileState::Unreadable;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return SettingsFileState::Unreadable;
    const QByteArray content = file.readAll();
    if (file.error() != QFile::NoError)
        return SettingsFileState::Unreadable;
    return isIntactSettingsText(content) && isReadWhole(path) ? SettingsFileState::Intact
                                                              : SettingsFileState::Damaged;
}

bool isIntactSettingsText(const QByteArray &content)
{
    for (const char c : content) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte < 0x20 && c != '\n' && c != '\r' && c != '\t') || byte == 0x7f)
            return false;
    }
    // QSettings reads a byte order mark as an invalid line, or as the beginning of a key.
    if (content.startsWith("\xef\xbb\xbf") || QString::fromUtf8(content).toUtf8() != content)
        return false;
    QByteArray text = content;
    text.replace('\r', '\n');
    for (const QByteArray &line : text.split('\n')) {
        if (!isIntactLine(line.trimmed()))
            return false;
    }
    return true;
}

std::optional<QString> setSettingsFileAside(const QString &path)
{
    for (int number = 0; number < 1000; ++number) {
        const QString name = path + QStringLiteral(".broken")
            + (number > 0 ? QStringLiteral("-%1").arg(number) : QString());
        const QFileInfo taken(name);
        if (taken.exists() || taken.isSymLink())
            continue;
        // Not QFile::rename: it copies a file that it cannot rename, and accepts no directories.
        std::error_code error;
        std::filesystem::rename(QFile::encodeName(path).toStdString(),
                                QFile::encodeName(name).toStdString(), error);
        return error ? std::nullopt : std::make_optional(name);
    }
    return std::nullopt;
}

QVariantMap readSettingsFile(const QString &path)
{
    const QSettings settings(path, QSettings::IniFormat);
    QVariantMap values;
    for (const QString &key : settings.allKeys())
        values.insert(key, settings.value(key));
    return values;
}

// Writes a copy beside the file and renames it over the file. If QSettings had the file itself, it
// would keep values that it failed to write and write them at a later time, over the file's content
// of that time. It would also make new files readable for every user.
bool rewriteSettingsFile(const QString &path, const QSet<QString> &keys, const QVariantMap &values)
{
    const QFileInfo link(path);
    const QFileInfo target(link.isSymLink() ? link.symLinkTarget() : path);
    if (!makeFolder(target.path()) || (target.exists() && !isWritable(target.filePath())))
        return false;
    const std::optional<QString> copy = copyBeside(target);
    if (!copy)
        return false;
    if (writeKeys(*copy, keys, values)) {
        keepDistinctTime(*copy, target);
        if (::rename(QFile::encodeName(*copy).constData(),
                     QFile::encodeName(target.filePath()).constData())
            == 0) {
            syncFolder(target.path());
            return true;
        }
    }
    QFile::remove(*copy);
    return false;
}

} // namespace veldmark
