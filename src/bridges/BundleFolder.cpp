#include "bridges/BundleFolder.h"

#include "system/SignedBundle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace veldmark {

namespace {

constexpr qint64 recordLimitBytes = 4096;

std::optional<QString> textOf(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return QString::fromUtf8(file.read(recordLimitBytes)).trimmed();
}

QString lastSystemError()
{
    return qt_error_string(errno);
}

// Whether the name exists, even as a dangling link.
bool isThere(const QString &path)
{
    struct stat status { };
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0;
}

bool moved(const QString &from, const QString &to)
{
    return ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

// Removes what the name holds first: the archive may have a member of that name, of any kind.
bool wrote(const QString &path, const QString &text)
{
    removeTree(path);
    QFile file(path);
    const QByteArray bytes = text.toUtf8() + '\n';
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly) && file.write(bytes) == bytes.size()
        && file.flush();
}

// Writes the new bundle to the disk before the old one is removed.
void writeThrough(const QString &folder)
{
#ifdef Q_OS_LINUX
    const int fd = ::open(QFile::encodeName(folder).constData(),
                          O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        ::syncfs(fd);
        ::close(fd);
    }
#else
    Q_UNUSED(folder)
    ::sync();
#endif
}

} // namespace

void removeTree(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status { };
    if (::lstat(name.constData(), &status) != 0)
        return;
    if (!S_ISDIR(status.st_mode)) {
        ::unlink(name.constData());
        return;
    }
    ::chmod(name.constData(), 0700);
    const QStringList entries = QDir(path).entryList(QDir::AllEntries | QDir::Hidden | QDir::System
                                                     | QDir::NoDotAndDotDot);
    for (const QString &entry : entries)
        removeTree(path + u'/' + entry);
    ::rmdir(name.constData());
}

BundleRecord BundleRecord::read(const QString &folder)
{
    return {textOf(folder + QStringLiteral("/VERSION")),
            textOf(folder + QStringLiteral("/VERIFIED")),
            textOf(folder + QStringLiteral("/SIGNED"))};
}

bool BundleFolder::exchange(const QString &one, const QString &other)
{
    const QByteArray first = QFile::encodeName(one);
    const QByteArray second = QFile::encodeName(other);
#ifdef Q_OS_LINUX
    return ::renameat2(AT_FDCWD, first.constData(), AT_FDCWD, second.constData(), RENAME_EXCHANGE)
        == 0;
#else
    return ::renamex_np(first.constData(), second.constData(), RENAME_SWAP) == 0;
#endif
}

BundleFolder::BundleFolder(QString folder, Exchange exchange, int lock)
    : m_folder(std::move(folder)),
      m_exchange(std::move(exchange)),
      m_lock(lock)
{
}

BundleFolder::~BundleFolder()
{
    ::close(m_lock);
}

Result<std::shared_ptr<BundleFolder>, Text> BundleFolder::claim(const QString &folder,
                                                                Exchange exchange)
{
    const QFileInfo place(folder);
    const QString parent = place.absolutePath();
    if (!QDir().mkpath(parent))
        return Failure(Text::tr("Couldn't make the folder %1: %2.").arg(parent, lastSystemError()));
    const QString lockFile = parent + QStringLiteral("/.") + place.fileName()
        + QStringLiteral(".lock");
    const int lock = ::open(QFile::encodeName(lockFile).constData(),
                            O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (lock < 0)
        return Failure(Text::tr("Couldn't open %1: %2.").arg(lockFile, lastSystemError()));
    if (::flock(lock, LOCK_EX | LOCK_NB) != 0) {
        ::close(lock);
        return Failure(Text::tr("Another download is under way."));
    }
    std::shared_ptr<BundleFolder> claimed(new BundleFolder(folder, std::move(exchange), lock));
    char noted[recordLimitBytes] = {};
    const ssize_t size = ::pread(lock, noted, sizeof noted, 0);
    claimed->m_forgotten = QFile::decodeName(QByteArray(noted, size > 0 ? size : 0)).trimmed();
    claimed->recover();
    return claimed;
}

void BundleFolder::note(const QString &temporary) const
{
    const QByteArray line = temporary.isEmpty() ? QByteArray()
                                                : QFile::encodeName(temporary) + '\n';
    // If the note cannot be written, a folder in /tmp may stay behind, nothing else.
    if (::ftruncate(m_lock, 0) == 0
        && ::pwrite(m_lock, line.constData(), static_cast<size_t>(line.size()), 0) < 0)
        qWarning("The temporary folder could not be noted");
}

QString BundleFolder::beside(const char *suffix) const
{
    const QFileInfo place(m_folder);
    return place.absolutePath() + QStringLiteral("/.") + place.fileName() + QLatin1String(suffix);
}

void BundleFolder::recover() const
{
    if (isThere(beside(".old")) && !isThere(m_folder))
        moved(beside(".old"), m_folder);
    removeTree(beside(".old"));
    removeUnfinished();
}

void BundleFolder::removeUnfinished() const
{
    const QFileInfo pattern(beside(".new-"));
    const QStringList names = QDir(pattern.path())
                                  .entryList(QDir::AllEntries | QDir::Hidden | QDir::System
                                             | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        if (name.startsWith(pattern.fileName()))
            removeTree(pattern.path() + u'/' + name);
    }
}

Result<QString, Text> BundleFolder::fresh()
{
    QByteArray name = QFile::encodeName(beside(".new-XXXXXX"));
    // Tor's own account runs programs from here, so the mode must not depend on the user's umask.
    if (::mkdtemp(name.data()) == nullptr || ::chmod(name.constData(), 0755) != 0)
        return Failure(
            Text::tr("Couldn't make a folder beside %1: %2.").arg(m_folder, lastSystemError()));
    m_fresh = QFile::decodeName(name);
    return m_fresh;
}

void BundleFolder::forgetOrigin() const
{
    removeTree(QFileInfo(SignedBundle::archiveBelow(m_fresh)).path());
}

void BundleFolder::keepOrigin(const QString &archive, const QString &signature,
                              const QString &key) const
{
    const QString kept = SignedBundle::archiveBelow(m_fresh);
    const QString place = QFileInfo(kept).path();
    forgetOrigin();
    const bool isKept = QFileInfo(archive).size() <= SignedBundle::archiveLimitBytes
        && QFileInfo(key).size() <= SignedBundle::keyLimitBytes
        && QFileInfo(signature).size() <= SignedBundle::keyLimitBytes
        && ::mkdir(QFile::encodeName(place).constData(), 0700) == 0 && QFile::copy(archive, kept)
        && QFile::copy(signature, SignedBundle::signatureOf(kept))
        && QFile::copy(key, SignedBundle::keyOf(kept));
    if (!isKept) { // an administrator then approves its programs
        forgetOrigin();
        qWarning("The archive of the bundle could not be kept");
    }
}

Result<void, Text> BundleFolder::publish(const QString &version, bool isVerified,
                                         qint64 signedAt) const
{
    const QString folder = m_fresh;
    const QString former = beside(".old");
    const auto failed = [this] {
        return Failure(Text::tr("Couldn't write %1: %2.").arg(m_folder, lastSystemError()));
    };
    if (!wrote(folder + QStringLiteral("/VERSION"), version)
        || !wrote(folder + QStringLiteral("/VERIFIED"),
                  isVerified ? QStringLiteral("signature") : QStringLiteral("https")))
        return failed();
    removeTree(folder + QStringLiteral("/SIGNED")); // the archive's own member, if any
    if (isVerified && signedAt > 0
        && !wrote(folder + QStringLiteral("/SIGNED"), QString::number(signedAt)))
        return failed();
    writeThrough(folder);

    if (!isThere(m_folder)) {
        if (!moved(folder, m_folder))
            return failed();
    } else if (m_exchange(folder, m_folder)) {
        removeTree(folder); // now holds the old bundle
    } else {
        // Two steps. The next claim() finishes them if this process is killed in between.
        if (!moved(m_folder, former))
            return failed();
        if (!moved(folder, m_folder)) {
            const auto error = failed();
            moved(former, m_folder);
            return error;
        }
        removeTree(former);
    }
    return {};
}

std::optional<QString> BundleFolder::freshVersion() const
{
    const QString file = m_fresh + QStringLiteral("/VERSION");
    return QFileInfo(file).isSymLink() ? std::nullopt : textOf(file);
}

void BundleFolder::discard() const
{
    removeUnfinished();
}

} // namespace veldmark
