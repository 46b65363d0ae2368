#include "platform/RunningApplications.h"

#include "base/FileContent.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <gio/gdesktopappinfo.h>
#include <signal.h>
#include <unistd.h>

namespace veldmark {

namespace {

constexpr qint64 readLimitBytes = 1 << 20;

struct Release {
    void operator()(GDesktopAppInfo *info) const { g_object_unref(info); }
};
using Entry = std::unique_ptr<GDesktopAppInfo, Release>;

Entry entryAt(const QString &path)
{
    return Entry(g_desktop_app_info_new_from_filename(QFile::encodeName(path).constData()));
}

// Whether this program runs other programs, so that a process of it does not identify an
// application.
bool isInterpreter(const QString &program)
{
    static const QRegularExpression names(QRegularExpression::anchoredPattern(QStringLiteral(
        "(?:(?:ba|da|k|mk|pdk|z|fi|tc|c|ya|a)?sh|busybox|toybox|pwsh|env|bwrap|flatpak|snap"
        "|python|pypy|perl|ruby|jruby|lua|luajit|php|tclsh|wish|guile|gjs|gjs-console|node|nodejs|deno|bun|java"
        "|mono|mono-sgen|dotnet|wine|wine64|wine-preloader|wine64-preloader|R|Rscript|julia|racket|electron|qml"
        "|qmlscene|awk|gawk|mawk)-?[0-9.]*")));
    return names.match(QFileInfo(program).fileName()).hasMatch();
}

// The executable that the entry starts, with links resolved. Empty when the entry's command has
// arguments: the program may then be an interpreter or a launcher, which other applications of the
// user use as well. Also empty for an interpreter alone.
QString ownProgram(const Entry &entry)
{
    const char *command = g_app_info_get_commandline(G_APP_INFO(entry.get()));
    gchar **words = nullptr;
    if (!command || !g_shell_parse_argv(command, nullptr, &words, nullptr))
        return {};
    bool plain = true;
    for (gchar **word = words + 1; *word; ++word)
        plain = plain && ((*word)[0] == '%' || ((*word)[0] == '-' && (*word)[1] == '-'));
    QString program;
    if (plain) {
        if (gchar *found = g_find_program_in_path(words[0])) {
            program = QFileInfo(QFile::decodeName(found)).canonicalFilePath();
            g_free(found);
            if (isInterpreter(program) || isInterpreter(QString::fromLocal8Bit(words[0])))
                program.clear();
        }
    }
    g_strfreev(words);
    return program;
}

// Whether the last part of the process's control group is one that desktops create for this
// application: "app-DESKTOP-ID-NUMBER.scope", "app-ID@NUMBER.service", with "-" in the ID written
// "\x2d".
bool isOwnGroup(const QByteArray &groups, const QString &id)
{
    QString escaped = id;
    escaped.replace(u'-', QStringLiteral("\\x2d"));
    const QRegularExpression own(
        QStringLiteral("/app-(?:[^/]+-)?%1(?:-[^-/]+\\.scope|@[^/]*\\.service|\\.service)$")
            .arg(QRegularExpression::escape(escaped)));
    for (const QByteArray &line : groups.split('\n')) {
        if (own.match(QString::fromUtf8(line)).hasMatch())
            return true;
    }
    return false;
}

class LinuxApplications final : public RunningApplications {
public:
    explicit LinuxApplications(QString processFolder) : m_processes(std::move(processFolder)) { }

    QString displayName(const QString &path) const override
    {
        if (const Entry entry = entryAt(path))
            return QString::fromUtf8(g_app_info_get_display_name(G_APP_INFO(entry.get())));
        return QFileInfo(path).fileName().remove(QStringLiteral(".desktop"));
    }

    std::vector<qint64> copiesOf(const QString &path) const override
    {
        std::vector<qint64> found;
        const Entry entry = entryAt(path);
        const QString program = entry ? ownProgram(entry) : QString();
        const QString id = QFileInfo(path).completeBaseName();
        const QByteArray launched = "GIO_LAUNCHED_DESKTOP_FILE=" + QFile::encodeName(path);
        for (const QString &name : QDir(m_processes).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            bool isNumber = false;
            const qint64 process = name.toLongLong(&isNumber);
            const QString folder = m_processes + u'/' + name;
            if (!isNumber || process == getpid() || QFileInfo(folder).ownerId() != getuid())
                continue;
            const auto variables
                = contentOf(folder + QStringLiteral("/environ"), readLimitBytes).split('\0');
            // Children inherit the first of the two; the second identifies the application itself.
            const bool wasLaunched = variables.contains(launched)
                && variables.contains("GIO_LAUNCHED_DESKTOP_FILE_PID=" + name.toLatin1());
            const QString executable = QFile::symLinkTarget(folder + QStringLiteral("/exe"));
            if (wasLaunched || (!program.isEmpty() && executable == program)
                || isOwnGroup(contentOf(folder + QStringLiteral("/cgroup"), readLimitBytes), id))
                found.push_back(process);
        }
        return found;
    }

    void askToQuit(qint64 process) override { kill(static_cast<pid_t>(process), SIGTERM); }

    bool hasEnded(qint64 process) const override
    {
        const QByteArray state = contentOf(m_processes + u'/' + QString::number(process)
                                               + QStringLiteral("/stat"),
                                           readLimitBytes);
        // the name before it may contain any character
        const qsizetype end = state.lastIndexOf(')');
        return end < 0 || state.mid(end + 2, 1) == "Z";
    }

private:
    const QString m_processes;
};

} // namespace

std::unique_ptr<RunningApplications> runningApplications(const QString &processFolder)
{
    return std::make_unique<LinuxApplications>(processFolder);
}

} // namespace veldmark
