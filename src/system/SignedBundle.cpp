#include "system/SignedBundle.h"

#include "base/ProgramFile.h"
#include "platform/PlatformProfile.h"
#include "system/ProgramApproval.h"

#include <QFileInfo>

#include <algorithm>

namespace veldmark {

bool SignedBundle::isOfUse(const PlatformProfile &profile)
{
    return isProgram(profile.places.root + QStringLiteral("/usr/bin/gpgv"));
}

QString SignedBundle::archiveBelow(const QString &folder)
{
    return folder + QStringLiteral("/origin/bundle.tar.gz");
}

QString SignedBundle::signatureOf(const QString &archive)
{
    return archive + QStringLiteral(".asc");
}

QString SignedBundle::keyOf(const QString &archive)
{
    return archive + QStringLiteral(".key");
}

bool SignedBundle::brings(const PlatformProfile &profile, const ProgramApproval &program)
{
    const QString folder = QFileInfo(profile.bundleDirectory).canonicalFilePath();
    return !folder.isEmpty() && program.role != QLatin1String("tor")
        && QFileInfo(program.path).path() == folder + QStringLiteral("/tor/pluggable_transports");
}

QStringList SignedBundle::words(const PlatformProfile &profile,
                                const std::vector<ProgramApproval> &missing)
{
    const QString archive = archiveBelow(profile.bundleDirectory);
    const QStringList files = {archive, signatureOf(archive), keyOf(archive)};
    const auto isThere = [](const QString &path) { return QFileInfo(path).isFile(); };
    const auto isBrought = [&profile](const ProgramApproval &program) {
        return brings(profile, program);
    };
    if (!isOfUse(profile) || std::none_of(missing.begin(), missing.end(), isBrought)
        || !std::all_of(files.begin(), files.end(), isThere))
        return {};
    return {QStringLiteral("--bundle"), archive};
}

} // namespace veldmark
