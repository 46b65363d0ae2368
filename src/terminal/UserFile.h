#pragma once

#include "base/Result.h"
#include "terminal/TerminalError.h"

#include <QByteArray>
#include <QString>

#include <optional>

#include <sys/types.h>

// Atomic changes of files in the user's home: a reader at any moment, and a crash, finds either the
// complete old content or the complete new one. Blocking; any thread.
namespace veldmark {

// A file that belongs to the user: a shell's start-up file, the SSH configuration.
class UserFile {
public:
    // Reads the file; a missing file is empty. A symbolic link is followed, also to a file that
    // does not exist yet. Fails when the file is unreadable or not a regular file.
    static Result<UserFile, TerminalError> read(const QString &path);

    bool exists() const { return m_found.has_value(); }
    const QByteArray &content() const { return m_content; }

    // Writes a new file beside the old one, with its mode and owner, and renames it over the old
    // one; a link stays a link. `newMode`, below the umask, is for a file that did not exist. Does
    // nothing when the content is the same. Fails, with the file unchanged, when it is read-only,
    // belongs to another user, or has changed since it was read. Other hard links to the file keep
    // the old content, and access lists are not copied. A process killed in between leaves the new
    // file beside the old one, as .NAME.veldmark-something.
    Result<void, TerminalError> replace(const QByteArray &content, mode_t newMode) const;

private:
    struct Identity {
        dev_t device;
        ino_t number;
        off_t size;
        qint64 changed; // nanoseconds
        mode_t mode;
        uid_t owner;
        gid_t group;
        friend bool operator==(const Identity &, const Identity &) = default;
    };
    static std::optional<Identity> look(const QString &target);

    QString m_path;   // as given, for messages
    QString m_target; // the target of a link
    std::optional<Identity> m_found;
    QByteArray m_content;
};

enum class NewFileMode { exact, belowUmask };

// Writes a file of the program itself and replaces any existing one; does nothing when the content
// is already the same. Does not wait for the disk: after a power cut the next call repairs the
// file.
Result<void, TerminalError> writeOwnFile(const QString &path, const QByteArray &content,
                                         mode_t mode, NewFileMode kind = NewFileMode::belowUmask);

} // namespace veldmark
