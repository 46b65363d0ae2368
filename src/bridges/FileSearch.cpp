#include "bridges/FileSearch.h"

#include <QFile>

#include <algorithm>
#include <memory>
#include <vector>

#include <dirent.h>
#include <sys/stat.h>

namespace veldmark {

namespace {

struct CloseDirectory {
    void operator()(DIR *directory) const { ::closedir(directory); }
};

bool isFolder(const QByteArray &path)
{
    struct stat status = {};
    return ::lstat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

QStringList filesNamed(const QString &root, const QByteArrayList &names, const StopToken &ended)
{
    const QByteArray top = QFile::encodeName(root);
    std::vector<QByteArray> found; // relative to the root
    std::vector<QByteArray> folders = {QByteArray()};
    while (!folders.empty() && !ended.stop_requested()) {
        const QByteArray folder = std::move(folders.back());
        folders.pop_back();
        const std::unique_ptr<DIR, CloseDirectory> directory(
            ::opendir((top + '/' + folder).constData()));
        if (!directory)
            continue;
        // The stream is used by this thread only.
        while (const dirent *entry = ::readdir(directory.get())) {
            const auto name = QByteArray::fromRawData(entry->d_name,
                                                      qsizetype(qstrlen(entry->d_name)));
            if (name == "." || name == "..")
                continue;
            if (entry->d_type == DT_DIR
                || (entry->d_type == DT_UNKNOWN && isFolder(top + '/' + folder + name)))
                folders.push_back(folder + name + '/');
            else if (names.contains(name))
                found.push_back(folder + name);
        }
    }
    std::sort(found.begin(), found.end());
    QStringList paths;
    for (const QByteArray &path : found)
        paths.append(QFile::decodeName(top + '/' + path));
    return paths;
}

} // namespace veldmark
