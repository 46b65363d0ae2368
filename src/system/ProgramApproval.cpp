#include "system/ProgramApproval.h"

#include "platform/PlatformProfile.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

#include <sys/stat.h>
#include <sys/statvfs.h>

namespace veldmark {

namespace {

struct Role {
    const char *option;
    const char *name;
    std::array<const char *, 3> files; // file names of the system's own programs for it
};

// The same table as the helper's, which decides (resources/helper/programs.sh).
constexpr std::array<Role, 4> roles{{
    {"--tor", "tor", {"tor", "tor", "tor"}},
    {"--pt-lyrebird", "lyrebird", {"lyrebird", "obfs4proxy", "meek-client"}},
    {"--pt-snowflake", "snowflake-client", {"snowflake-client", "lyrebird", "lyrebird"}},
    {"--pt-webtunnel", "webtunnel-client", {"webtunnel-client", "webtunnel", "lyrebird"}},
}};

// Whether only root can change the file and every folder above it.
bool isRootsAlone(QString path)
{
    for (;; path = QFileInfo(path).path()) {
        struct stat about { };
        if (::lstat(QFile::encodeName(path).constData(), &about) != 0 || about.st_uid != 0
            || (about.st_mode & (S_IWGRP | S_IWOTH)) != 0)
            return false;
        if (path == QLatin1String("/"))
            return true;
    }
}

bool isSystems(const PlatformProfile &profile, const QString &path, const Role &role)
{
    const QString file = QFileInfo(path).fileName();
    const bool isNamed = std::any_of(
        role.files.begin(), role.files.end(),
        [&file](const char *name) { return file == QLatin1String(name); });
    const QString &root = profile.places.root;
    struct statvfs system { };
    return isNamed
        && (path.startsWith(root + QLatin1String("/usr/"))
            || path.startsWith(root + QLatin1String("/opt/")))
        && isRootsAlone(path) && ::statvfs(QFile::encodeName(path).constData(), &system) == 0
        && (system.f_flag & ST_NOSUID) == 0; // user-mounted media have ST_NOSUID
}

QString digestOf(const QString &path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file))
        return {};
    return QString::fromLatin1(hash.result().toHex());
}

} // namespace

QStringList ProgramApproval::words() const
{
    return {QStringLiteral("approve"),
            QStringLiteral("--program"),
            path,
            QStringLiteral("--as"),
            role,
            QStringLiteral("--sha256"),
            digest};
}

std::vector<ProgramApproval> ProgramApproval::named(const PlatformProfile &profile,
                                                    const QStringList &words)
{
    std::vector<ProgramApproval> found;
    for (const Role &role : roles) {
        const qsizetype at = words.indexOf(QLatin1String(role.option));
        if (at < 0 || at + 1 >= words.size())
            continue;
        const QString path = QFileInfo(words.at(at + 1)).canonicalFilePath();
        if (path.isEmpty() || isSystems(profile, path, role))
            continue;
        const QString digest = digestOf(path);
        if (!digest.isEmpty())
            found.push_back({path, QLatin1String(role.name), digest});
    }
    return found;
}

std::vector<ProgramApproval> ProgramApproval::missing(const PlatformProfile &profile,
                                                      const QStringList &words)
{
    std::vector<ProgramApproval> found = named(profile, words);
    std::erase_if(found, [&profile](const ProgramApproval &program) {
        return QFileInfo::exists(profile.approvedPrograms + u'/' + program.digest + u'/'
                                 + program.role);
    });
    return found;
}

} // namespace veldmark
