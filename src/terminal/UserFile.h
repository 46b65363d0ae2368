#pragma once

#include "base/Result.h"
#include "terminal/TerminalError.h"

#include <QByteArray>
#include <QString>

#include <optional>

#include <sys/types.h>

// Files in the user's home, changed so that whoever reads them at any moment, and whatever is left
// after a crash, sees either the old content or the new one, whole. Blocking; any thread.
namespace veldmark {

// A file that belongs to the user: a shell's start-up file, the SSH configuration.
class UserFile {
public:
    // Reads it; a file that does not exist is empty. A symbolic link is followed, also to a file
    // that does not exist yet. Fails when it cannot be read or is no file.
    static Result<UserFile, TerminalError> read(const QString &path);

    bool exists() const { return m_found.has_value(); }
    const QByteArray &content() const { return m_content; }

    // Writes a new file beside the old one, with its mode and owner, and puts it in its place; a
    // link stays a link. `newMode`, below the umask, is for a file that did not exist. Does nothing
    // when the content is the same. Fails, with the file as it was, when it is read-only, belongs
    // to another user, or has changed since it was read. Other hard links to the file keep the old
    // content, and access lists are not carried over. A process that is killed in between leaves
    // the new file beside the old one, as .NAME.veldmark-something.
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
    QString m_target; // what a link leads to
    std::optional<Identity> m_found;
    QByteArray m_content;
};

enum class OwnMode { exact, belowUmask };

// Writes a file of the program's own, in place of whatever is there; nothing when that is the same
// file already. Does not wait for the disk: the next call repairs what a power cut has taken.
Result<void, TerminalError> writeOwnFile(const QString &path, const QByteArray &content,
                                         mode_t mode, OwnMode kind = OwnMode::belowUmask);

} // namespace veldmark
