#include "bridges/BundleArchive.h"

#include "bridges/ChildOutput.h"

#include <QByteArrayList>
#include <QFile>

#include <filesystem>

using namespace std::chrono_literals;
namespace fs = std::filesystem;

namespace veldmark {

namespace {

// A bundle has about a dozen members and 100 MB.
const ChildLimits listingLimits{180s, 8 * 1024 * 1024};
constexpr qsizetype memberLimit = 20'000;
constexpr qint64 unpackedLimitBytes = 2'000'000'000;

Text refusal(const Text &what, QByteArrayView name)
{
    return Text::tr("The archive contains %1: %2")
        .arg(what, QString::fromUtf8(name.first(std::min<qsizetype>(name.size(), 200))));
}

// Whether the path stays below its starting folder.
bool leadsDownwards(QByteArrayView path)
{
    if (path.isEmpty() || path.startsWith('/'))
        return false;
    const QByteArrayList parts = path.toByteArray().split('/');
    return !parts.contains("..");
}

// In "-tv" the size is the third field when owner and group are one field ("0/0"), else the fifth.
std::optional<qint64> sizeIn(const QByteArray &details)
{
    const QByteArrayList fields = details.left(300).simplified().split(' ');
    bool isNumber = false;
    const qint64 size = fields.value(fields.value(1).contains('/') ? 2 : 4).toLongLong(&isNumber);
    return isNumber && size >= 0 ? std::optional(size) : std::nullopt;
}

QByteArrayList linesOf(QByteArrayView text)
{
    QByteArrayList lines = text.toByteArray().split('\n');
    if (lines.constLast().isEmpty())
        lines.removeLast();
    return lines;
}

std::optional<QByteArray> listing(const QString &tar, const QString &option, const QString &archive)
{
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    environment.insert(QStringLiteral("PATH"), QStringLiteral("/usr/bin:/bin")); // tar starts gzip
    return childOutput(tar, {QStringLiteral("--numeric-owner"), option, archive}, environment,
                       listingLimits);
}

std::optional<Text> entryProblem(const fs::directory_entry &entry)
{
    std::error_code error;
    const fs::file_status status = entry.symlink_status(error);
    const QByteArray name = QByteArray::fromStdString(entry.path().filename().string());
    if (error)
        return QString::fromStdString(error.message());
    switch (status.type()) {
    case fs::file_type::symlink: {
        const std::string target = fs::read_symlink(entry.path(), error).string();
        if (error || !leadsDownwards(target))
            return refusal(Text::tr("a link that leads elsewhere"), name);
        return std::nullopt;
    }
    case fs::file_type::regular: {
        if (entry.hard_link_count(error) != 1 || error)
            return refusal(Text::tr("a hard link"), name);
        const bool isProgram = (status.permissions() & fs::perms::owner_exec) != fs::perms::none;
        fs::permissions(entry.path(), static_cast<fs::perms>(isProgram ? 0755 : 0644), error);
        break;
    }
    case fs::file_type::directory:
        fs::permissions(entry.path(), static_cast<fs::perms>(0755), error);
        break;
    default:
        return refusal(Text::tr("an entry that is neither a file nor a folder"), name);
    }
    return error ? std::optional<Text>(QString::fromStdString(error.message())) : std::nullopt;
}

} // namespace

std::optional<Text> listingProblem(QByteArrayView names, QByteArrayView details)
{
    const QByteArrayList nameLines = linesOf(names);
    const QByteArrayList detailLines = linesOf(details);
    if (nameLines.isEmpty())
        return Text::tr("The file is empty or not an archive.");
    if (nameLines.size() != detailLines.size())
        return Text::tr("The archive's list of files is ambiguous.");
    if (nameLines.size() > memberLimit)
        return Text::tr("The archive contains too many files.");

    qint64 total = 0;
    for (qsizetype i = 0; i < nameLines.size(); ++i) {
        const QByteArray &name = nameLines[i];
        const QByteArray &line = detailLines[i];
        if (!leadsDownwards(name))
            return refusal(Text::tr("a path that leads elsewhere"), name);
        const char type = line.isEmpty() ? '\0' : line.front();
        if (type == 'l') {
            const qsizetype arrow = line.lastIndexOf(name + " -> ");
            if (arrow < 0 || !leadsDownwards(QByteArrayView(line).sliced(arrow + name.size() + 4)))
                return refusal(Text::tr("a link that leads elsewhere"), name);
            continue;
        }
        if (type == 'h' || line.contains(" link to "))
            return refusal(Text::tr("a hard link"), name);
        if (type != '-' && type != 'd')
            return refusal(Text::tr("an entry that is neither a file nor a folder"), name);
        const std::optional<qint64> size = sizeIn(line);
        if (!size || *size > unpackedLimitBytes - total)
            return Text::tr("The archive's content is too large.");
        total += *size;
    }
    return std::nullopt;
}

std::optional<Text> archiveProblem(const QString &tar, const QString &archive)
{
    const std::optional<QByteArray> names = listing(tar, QStringLiteral("-tzf"), archive);
    const std::optional<QByteArray> details = listing(tar, QStringLiteral("-tvzf"), archive);
    if (!names || !details)
        return Text::tr("The archive's content could not be listed.");
    return listingProblem(*names, *details);
}

std::optional<Text> settleUnpacked(const QString &folder)
{
    std::error_code error;
    fs::recursive_directory_iterator entries(QFile::encodeName(folder).toStdString(), error);
    for (; !error && entries != fs::recursive_directory_iterator(); entries.increment(error)) {
        if (const std::optional<Text> problem = entryProblem(*entries))
            return problem;
    }
    return error ? std::optional<Text>(QString::fromStdString(error.message())) : std::nullopt;
}

} // namespace veldmark
