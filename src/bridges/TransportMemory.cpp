#include "bridges/TransportMemory.h"

#include <QFile>

#include <sys/stat.h>

namespace veldmark {

namespace {

qint64 nanoseconds(const timespec &time)
{
    return static_cast<qint64>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

} // namespace

std::optional<TransportMemory::Stamp> TransportMemory::stampOf(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
#ifdef Q_OS_DARWIN
    const timespec &modified = status.st_mtimespec, &changed = status.st_ctimespec;
#else
    const timespec &modified = status.st_mtim, &changed = status.st_ctim;
#endif
    return Stamp{static_cast<quint64>(status.st_dev), static_cast<quint64>(status.st_ino),
                 static_cast<qint64>(status.st_size), nanoseconds(modified), nanoseconds(changed)};
}

template <typename Answer>
std::optional<Answer> TransportMemory::Store<Answer>::look(const QString &path, const Stamp &stamp)
{
    const std::lock_guard lock(guard);
    const auto at = known.constFind(path);
    return at != known.constEnd() && at->first == stamp ? std::optional(at->second) : std::nullopt;
}

template <typename Answer>
Answer TransportMemory::Store<Answer>::find(const QString &path,
                                            const std::function<std::optional<Answer>()> &ask)
{
    // Taken before the question: if the file is replaced during it, the next caller asks again.
    const std::optional<Stamp> stamp = stampOf(path);
    if (!stamp)
        return {};
    if (const auto answer = look(path, *stamp))
        return *answer;
    if (!ask)
        return {};
    const std::lock_guard turn(asking);
    if (const auto answer = look(path, *stamp)) // from the caller that asked before
        return *answer;
    const std::optional<Answer> answer = ask();
    if (!answer)
        return {};
    const std::lock_guard lock(guard);
    known.insert(path, {*stamp, *answer});
    return *answer;
}

TransportMemory::Bridges TransportMemory::bridges(
    const QString &archive, const std::function<std::optional<Bridges>()> &read)
{
    return m_archives.find(archive, read);
}

QStringList TransportMemory::served(const QString &program,
                                    const std::function<std::optional<QStringList>()> &ask)
{
    return m_programs.find(program, ask);
}

} // namespace veldmark
