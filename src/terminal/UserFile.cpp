#include "terminal/UserFile.h"

#include "plain/Descriptor.h"

#include <QFile>
#include <QRandomGenerator>

#include <cerrno>
#include <filesystem>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace veldmark {

namespace {

tl::unexpected<TerminalError> failure(const Text &sentence, const QString &path)
{
    return Failure(TerminalError{sentence.arg(path)});
}

tl::unexpected<TerminalError> systemFailure(const Text &sentence, const QString &path, int error)
{
    return Failure(TerminalError{sentence.arg(path, qt_error_string(error))});
}

const Text cannotRead = Text::tr("%1 can't be read: %2.");
const Text cannotWrite = Text::tr("%1 can't be written: %2.");

// The target of a chain of links, whether or not it exists. The path is not normalised: the kernel
// resolves ".." after a link to a folder.
std::optional<QString> linkTarget(const QString &path)
{
    std::filesystem::path place(QFile::encodeName(path).toStdString());
    for (int links = 0; links < 40; ++links) { // the kernel's limit
        std::error_code error;
        const std::filesystem::path next = std::filesystem::read_symlink(place, error);
        if (error) // not a link
            return QFile::decodeName(QByteArray::fromStdString(place.string()));
        place = place.parent_path() / next;
    }
    return std::nullopt;
}

bool writeAll(int descriptor, QByteArrayView content)
{
    while (!content.isEmpty()) {
        const ssize_t written = ::write(descriptor, content.data(), std::size_t(content.size()));
        if (written < 0 && errno != EINTR)
            return false;
        content = content.sliced(qMax(ssize_t(0), written));
    }
    return true;
}

struct Owner {
    uid_t user;
    gid_t group;
};

struct Access {
    mode_t mode;
    bool isExact; // otherwise the user's umask applies
    std::optional<Owner> owner;
    bool isDurable; // survives a power cut
};

// Creates a new, empty file beside `place` with a name derived from it, and puts its path into
// `fresh`.
int createBeside(const QByteArray &place, mode_t mode, QByteArray &fresh)
{
    const qsizetype slash = place.lastIndexOf('/');
    for (int attempt = 0; attempt < 100; ++attempt) {
        const quint32 number = QRandomGenerator::global()->generate();
        fresh = place.first(slash + 1) + '.' + place.sliced(slash + 1) + ".veldmark-"
            + QByteArray::number(number, 36);
        const int file = ::open(fresh.constData(),
                                O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode);
        if (file >= 0 || errno != EEXIST)
            return file;
    }
    return -1;
}

enum class ReplaceResult { done, notOurs, failed };

// Replaces `target` by a new file. `isStillWanted` is called last; errno has the reason of a failed
// step.
template <typename IsStillWanted>
ReplaceResult putInPlace(const QString &target, const QByteArray &content, const Access &access,
                         IsStillWanted isStillWanted)
{
    const QByteArray place = QFile::encodeName(target);
    QByteArray fresh;
    Descriptor file(createBeside(place, access.isExact ? 0600 : access.mode, fresh));
    if (!file)
        return ReplaceResult::failed;
    const auto giveUp = [&fresh](ReplaceResult result) {
        const int error = errno;
        ::unlink(fresh.constData());
        errno = error;
        return result;
    };
    if (access.owner && ::fchown(file.number(), access.owner->user, access.owner->group) != 0)
        return giveUp(errno == EPERM ? ReplaceResult::notOurs : ReplaceResult::failed);
    if (!writeAll(file.number(), content)
        || (access.isExact && ::fchmod(file.number(), access.mode) != 0)
        || (access.isDurable && ::fsync(file.number()) != 0) || !file.close())
        return giveUp(ReplaceResult::failed);
    if (!isStillWanted())
        return giveUp(ReplaceResult::notOurs);
    if (::rename(fresh.constData(), place.constData()) != 0)
        return giveUp(ReplaceResult::failed);
    if (!access.isDurable)
        return ReplaceResult::done;
    // The new name survives a power cut only after the folder is synced; the content is safe either
    // way.
    const QByteArray folder = place.first(place.lastIndexOf('/') + 1);
    const Descriptor directory(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (directory)
        ::fsync(directory.number());
    return ReplaceResult::done;
}

} // namespace

std::optional<UserFile::Identity> UserFile::look(const QString &target)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(target).constData(), &status) != 0)
        return std::nullopt;
#ifdef Q_OS_MACOS
    const timespec changed = status.st_mtimespec;
#else
    const timespec changed = status.st_mtim;
#endif
    return Identity{status.st_dev,  status.st_ino,
                    status.st_size, qint64(changed.tv_sec) * 1'000'000'000 + changed.tv_nsec,
                    status.st_mode, status.st_uid,
                    status.st_gid};
}

Result<UserFile, TerminalError> UserFile::read(const QString &path)
{
    UserFile result;
    result.m_path = path;
    const std::optional<QString> target = linkTarget(path);
    if (!target)
        return systemFailure(cannotRead, path, ELOOP);
    result.m_target = *target;
    errno = 0;
    result.m_found = look(*target);
    if (!result.m_found) {
        if (errno == ENOENT)
            return result;
        return systemFailure(cannotRead, path, errno);
    }
    if (!S_ISREG(result.m_found->mode))
        return failure(Text::tr("%1 is not a file."), path);

    QFile file(*target);
    if (!file.open(QIODevice::ReadOnly))
        return systemFailure(cannotRead, path, errno);
    result.m_content = file.readAll();
    if (file.error() != QFile::NoError)
        return systemFailure(cannotRead, path, errno);
    return result;
}

Result<void, TerminalError> UserFile::replace(const QByteArray &content, mode_t newMode) const
{
    if (exists() && content == m_content)
        return {};
    Access access{newMode, false, std::nullopt, true};
    if (m_found) {
        // A rename could replace a read-only file; the user has forbidden that.
        if ((m_found->mode & S_IWUSR) == 0
            || ::access(QFile::encodeName(m_target).constData(), W_OK) != 0)
            return failure(Text::tr("%1 is read-only."), m_path);
        access = {m_found->mode & 07777, true, Owner{m_found->owner, m_found->group}, true};
    }
    bool hasChanged = false;
    const ReplaceResult result = putInPlace(m_target, content, access, [this, &hasChanged] {
        hasChanged = look(m_target) != m_found;
        return !hasChanged;
    });
    if (hasChanged)
        return failure(Text::tr("%1 was changed by another program just now."), m_path);
    if (result == ReplaceResult::notOurs)
        return failure(Text::tr("%1 belongs to another user or group."), m_path);
    if (result == ReplaceResult::failed)
        return systemFailure(cannotWrite, m_path, errno);
    return {};
}

Result<void, TerminalError> writeOwnFile(const QString &path, const QByteArray &content,
                                         mode_t mode, NewFileMode kind)
{
    const QByteArray place = QFile::encodeName(path);
    struct stat status = {};
    if (::lstat(place.constData(), &status) == 0 && S_ISREG(status.st_mode)) {
        const mode_t found = status.st_mode & 07777;
        const bool isModeRight = kind == NewFileMode::exact ? found == mode : (found & ~mode) == 0;
        QFile file(path);
        if (isModeRight && status.st_size == content.size() && file.open(QIODevice::ReadOnly)
            && file.readAll() == content)
            return {};
    }
    const Access access{mode, kind == NewFileMode::exact, std::nullopt, false};
    if (putInPlace(path, content, access, [] { return true; }) != ReplaceResult::done)
        return systemFailure(cannotWrite, path, errno);
    return {};
}

} // namespace veldmark
