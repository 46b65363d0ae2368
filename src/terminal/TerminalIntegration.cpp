#include "terminal/TerminalIntegration.h"

#include "terminal/TerminalFiles.h"
#include "terminal/UserFile.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <filesystem>

#include <sys/stat.h>

namespace veldmark {

namespace {

using MarkedBlock::InsertedBytes;
using MarkedBlock::Position;

// At most this, whatever the umask: ssh refuses a configuration that the group can write.
constexpr mode_t plainMode = 0644;
constexpr mode_t programMode = 0755;
constexpr mode_t privateMode = 0600;

const QByteArray shellBody
    = "[ -f \"$HOME/.veldmark/shell.sh\" ] && . \"$HOME/.veldmark/shell.sh\"";
const QByteArray sshBody = "Include ~/.veldmark/ssh_config";

std::filesystem::path asPath(const QString &path)
{
    return std::filesystem::path(QFile::encodeName(path).toStdString());
}

Result<void, TerminalError> makeFolder(const QString &path)
{
    std::error_code error;
    std::filesystem::create_directories(asPath(path), error);
    if (error)
        return Failure(TerminalError{
            Text::tr("%1 can't be created: %2.").arg(path, qt_error_string(error.value()))});
    return {};
}

TerminalNames namesFor(const PlatformProfile &profile, const QString &exitCheckAddress)
{
    return {profile.terminalMaker, profile.sessionMarker, exitCheckAddress,
            profile.givesBackProxies};
}

} // namespace

TerminalIntegration::TerminalIntegration(PlatformProfile profile, QString exitCheckAddress)
    : m_profile(std::move(profile)),
      m_exitCheckAddress(std::move(exitCheckAddress)),
      m_search(std::make_shared<SocksSearch>(m_profile))
{
}

QString TerminalIntegration::own(const char *name) const
{
    return m_profile.terminalDirectory + u'/' + QLatin1String(name);
}

QString TerminalIntegration::sshConfiguration() const
{
    return m_profile.sshDirectory + QStringLiteral("/config");
}

Result<void, TerminalError> TerminalIntegration::install() const
{
    // The program's own files first, so that they exist when the user's files name them.
    const std::optional<QString> command = m_search->command();
    if (const auto written = writeShellFiles(); !written)
        return written;
    if (command) {
        if (const auto written = writeSshFiles(*command); !written)
            return written;
    }
    if (const auto added = addShellBlocks(); !added)
        return added;
    return command ? addSshBlock() : leaveOutSsh();
}

Result<void, TerminalError> TerminalIntegration::installForShells() const
{
    if (const auto written = writeShellFiles(); !written)
        return written;
    return addShellBlocks();
}

Result<void, TerminalError> TerminalIntegration::writeShellFiles() const
{
    if (const auto made = makeFolder(own("bin")); !made)
        return made;
    const TerminalNames names = namesFor(m_profile, m_exitCheckAddress);
    return writeOwnFile(own("shell.sh"), shellFile(names), plainMode);
}

Result<void, TerminalError> TerminalIntegration::writeSshFiles(const QString &command) const
{
    const TerminalNames names = namesFor(m_profile, m_exitCheckAddress);
    if (const auto written = writeOwnFile(own("ssh_config"), sshFile(names, command), plainMode);
        !written)
        return written;
    return writeOwnFile(own("bin/veldmark-active"), activeProgram(names), programMode,
                        NewFileMode::exact);
}

Result<void, TerminalError> TerminalIntegration::addShellBlocks() const
{
    QStringList files = m_profile.shellFilesAlways;
    for (const QString &path : m_profile.shellFilesIfPresent) {
        if (QFile::exists(path))
            files.append(path);
    }
    for (const QString &path : files) {
        if (const auto added = addBlock(shellBody, path, Position::atEnd, plainMode); !added)
            return added;
    }
    return {};
}

Result<void, TerminalError> TerminalIntegration::addSshBlock() const
{
    if (!QFile::exists(m_profile.sshDirectory)) {
        if (const auto made = makeFolder(m_profile.sshDirectory); !made)
            return made;
        ::chmod(QFile::encodeName(m_profile.sshDirectory).constData(), 0700);
    }
    // At the top: ssh uses the first value it finds, and an Include below a host section would
    // apply to that host only.
    return addBlock(sshBody, sshConfiguration(), Position::atStart, privateMode);
}

Result<void, TerminalError> TerminalIntegration::leaveOutSsh() const
{
    if (const auto removed = removeBlock(sshConfiguration(), Position::atStart); !removed)
        return removed;
    QFile::remove(own("ssh_config"));
    QFile::remove(own("bin/veldmark-active"));
    return {};
}

Result<void, TerminalError> TerminalIntegration::uninstall() const
{
    setActive(false);
    for (const QString &path : m_profile.shellFilesAlways + m_profile.shellFilesIfPresent) {
        if (const auto removed = removeBlock(path, Position::atEnd); !removed)
            return removed;
    }
    if (const auto removed = removeBlock(sshConfiguration(), Position::atStart); !removed)
        return removed;
    std::error_code error;
    // of a link only the link itself
    std::filesystem::remove_all(asPath(m_profile.terminalDirectory), error);
    if (error)
        return Failure(
            TerminalError{Text::tr("%1 can't be removed: %2.")
                              .arg(m_profile.terminalDirectory, qt_error_string(error.value()))});
    return {};
}

bool TerminalIntegration::isInstalled() const
{
    if (!QFile::exists(own("shell.sh")))
        return false;
    const QStringList &files = m_profile.shellFilesAlways;
    return std::any_of(files.begin(), files.end(), [](const QString &path) {
        const Result<UserFile, TerminalError> file = UserFile::read(path);
        return file && MarkedBlock::hasStart(file->content());
    });
}

bool TerminalIntegration::isUsedBySsh() const
{
    if (!QFile::exists(own("ssh_config")))
        return false;
    const Result<UserFile, TerminalError> file = UserFile::read(sshConfiguration());
    return file && MarkedBlock::hasStart(file->content());
}

void TerminalIntegration::setActive(bool on) const
{
    if (!on) {
        QFile::remove(own("active"));
        return;
    }
    if (makeFolder(m_profile.terminalDirectory))
        writeOwnFile(own("active"), QByteArray(), plainMode);
}

Text TerminalIntegration::sshHint() const
{
    return m_search->command() ? Text() : socksCommandHint(m_profile);
}

Result<void, TerminalError> TerminalIntegration::addBlock(const QByteArray &body,
                                                          const QString &path, Position position,
                                                          mode_t newMode) const
{
    const Result<UserFile, TerminalError> file = UserFile::read(path);
    if (!file)
        return Failure(file.error());
    const MarkedBlock::TextWithBlock withBlock = MarkedBlock::added(file->content(), body,
                                                                    position);
    if (withBlock.text == file->content())
        return {};
    InsertedByFile kept = insertedByFile();
    kept[path] = withBlock.inserted;
    if (const auto written = keep(kept); !written)
        return written;
    return file->replace(withBlock.text, newMode);
}

Result<void, TerminalError> TerminalIntegration::removeBlock(const QString &path,
                                                             Position position) const
{
    // A block in an unreadable file does no harm: without ~/.veldmark it does nothing.
    const Result<UserFile, TerminalError> file = UserFile::read(path);
    if (!file || !file->exists())
        return {};
    const InsertedByFile kept = insertedByFile();
    const auto ours = kept.find(path);
    return file->replace(MarkedBlock::removed(file->content(), position,
                                              ours == kept.end() ? InsertedBytes{} : ours->second),
                         plainMode);
}

TerminalIntegration::InsertedByFile TerminalIntegration::insertedByFile() const
{
    InsertedByFile result;
    QFile file(own("separators.json"));
    if (!file.open(QIODevice::ReadOnly))
        return result;
    const QJsonObject files = QJsonDocument::fromJson(file.read(65536)).object();
    for (auto entry = files.begin(); entry != files.end(); ++entry) {
        const QJsonObject inserted = entry.value().toObject();
        result[entry.key()] = {inserted.value(u"lineBreak").toBool(),
                               inserted.value(u"emptyLine").toBool()};
    }
    return result;
}

Result<void, TerminalError> TerminalIntegration::keep(const InsertedByFile &insertedByFile) const
{
    QJsonObject files;
    for (const auto &[path, inserted] : insertedByFile)
        files.insert(path,
                     QJsonObject{{QStringLiteral("lineBreak"), inserted.lineBreak},
                                 {QStringLiteral("emptyLine"), inserted.emptyLine}});
    return writeOwnFile(own("separators.json"), QJsonDocument(files).toJson(), plainMode);
}

} // namespace veldmark
