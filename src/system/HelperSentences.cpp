#include "system/HelperSentences.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

namespace veldmark::HelperSentences {

namespace {

// Sorted alphabetically.
constexpr const char *sources[] = {
    QT_TRANSLATE_NOOP("veldmark::Text", "A bridge line is not valid."),
    QT_TRANSLATE_NOOP(
        "veldmark::Text",
        "A record of the former network settings was damaged (%1). The network is open again; check your network settings."),
    QT_TRANSLATE_NOOP(
        "veldmark::Text",
        "A record of the former network settings was damaged (%1). The network is open again; check your proxy settings."),
    QT_TRANSLATE_NOOP("veldmark::Text", "An administrator password is needed to approve %1."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "An administrator password is needed to change the running strict session."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "An administrator password is needed to open an application without Tor."),
    QT_TRANSLATE_NOOP("veldmark::Text", "An administrator password is needed to set this up."),
    QT_TRANSLATE_NOOP(
        "veldmark::Text",
        "Another program (process %1) has started a session meanwhile. That session was left alone."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "Another program is changing the firewall. Try again in a moment."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "Another run of the helper is still working. Try again in a moment."),
    QT_TRANSLATE_NOOP("veldmark::Text", "Applications are not opened as root."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "Applications cannot be opened without Tor on this system."),
    QT_TRANSLATE_NOOP("veldmark::Text", "More than %1 bridges were given."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "Passwordless mode can be set up only for the user who asks."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The %1 bridge type isn't supported yet."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The DNS servers of systemd-resolved cannot be changed."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The DNS settings cannot be changed."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The DNS settings could not be put back."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "The SHA-256 of the program %1 differs from the one to approve."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The account %1 cannot be created."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The account %1 has no valid user id."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The account %1 must be neither root's nor the caller's."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The application could not be started (%1)."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The application could not be started."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The caller's user id is not a number."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The control group for Tor cannot be made."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "The control group of the applications without Tor could not be removed."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The copy of the program cannot be put into %1."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The desktop entry cannot be read (%1)."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The desktop entry cannot be read."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The desktop entry names no program that is installed."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The desktop's proxy settings cannot be changed."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The exit country is not a two-letter code."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The file %1 cannot be made."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The file %1 cannot be read."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The file %1 cannot be removed."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The file %1 cannot be written."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The file %1 could not be put back."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The files in %1 cannot be removed."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The filter before Tor's control port cannot be used."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The firewall cannot be switched on (%1)."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The firewall cannot end the earlier connections."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The firewall does not hold the rules that were loaded."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The firewall gave no token."),
    QT_TRANSLATE_NOOP(
        "veldmark::Text",
        "The firewall leaves out the network device %1 (\"set skip\" in /etc/pf.conf), where nothing would be blocked."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The firewall rules cannot be read, so nothing was done."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The firewall rules were not accepted (%1)."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The firewall's devices cannot be read."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The firewall's main rules cannot be changed (%1)."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The firewall's main rules cannot be read."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The firewall's state cannot be read."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The folder %1 cannot be changed."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The folder %1 cannot be created."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The folder %1 cannot be written."),
    QT_TRANSLATE_NOOP(
        "veldmark::Text",
        "The folder %1 is not safe: only root may own or write it and those above it."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "The folder %1 is not safe: only root may own or write it."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The folder /etc/sudoers.d is missing or not safe."),
    QT_TRANSLATE_NOOP(
        "veldmark::Text",
        "The folders above Veldmark's are not safe: only root may own or write them."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "The folders below %1 cannot be read, so nothing was done."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The folders below %1 cannot be read."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The former network settings could not all be restored."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The hashed control password is not valid."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The helper could not be copied to %1."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The helper does not know this verb."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The helper must run as root."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "The helper opens applications only for the user who asks."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The helper stopped unexpectedly."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The helper was given an option that it does not know."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The home folder cannot be entered."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The kill switch could not be switched off (%1)."),
    QT_TRANSLATE_NOOP(
        "veldmark::Text",
        "The kill switch could not be switched off, because another program is changing the firewall."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "The kill switch is not on, so no application needs to bypass it."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The launcher could not be copied to %1."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The lock file %1 cannot be opened."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The lock file %1 is a link, so nothing was done."),
    QT_TRANSLATE_NOOP(
        "veldmark::Text",
        "The network is open again, but the DNS servers of systemd-resolved could not be put back."),
    QT_TRANSLATE_NOOP(
        "veldmark::Text",
        "The network is open again, but the DNS servers of systemd-resolved could not be put back. Try: systemctl restart %1."),
    QT_TRANSLATE_NOOP(
        "veldmark::Text",
        "The network is open again, but the desktop's proxy settings could not be put back."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "The network is open again, but the journal in %1 cannot be cleared."),
    QT_TRANSLATE_NOOP(
        "veldmark::Text",
        "The network is open again, but the loopback device could not be set up as before. Try: ethtool -K lo %1 on."),
    QT_TRANSLATE_NOOP(
        "veldmark::Text",
        "The network is open again, but the session marker cannot be removed from %1."),
    QT_TRANSLATE_NOOP(
        "veldmark::Text",
        "The network is open again, but the system's own Tor service could not be started again. Try: systemctl start %1."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The network is open, but pf could not be released."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "The network is open, but the firewall's main rules could not be put back."),
    QT_TRANSLATE_NOOP(
        "veldmark::Text",
        "The network location %1 still has Veldmark's settings. Choose it and disconnect again."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The network settings cannot be read."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The notes of what to restore cannot be read."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The option %1 needs a value."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The option %1 was given twice."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The option --app is missing."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The option --hash is missing."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The option --lan is missing."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The option --program is missing."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The option --strict is missing."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The option --tor is missing."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The option --uid is missing."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The options on standard input are not complete."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The path given with %1 is not absolute."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The path given with --app is not absolute."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The path given with --app names no application."),
    QT_TRANSLATE_NOOP(
        "veldmark::Text",
        "The port %1, which Tor needs, is held by %2. End that program, then connect again."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The process id is not valid."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The program %1 cannot be copied."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The program %1 cannot be found."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The program %1 is missing on this system."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The program could not be started (%1)."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The program could not be started."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The program given with %1 is not an executable file."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The program veldmark-launch is missing."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "The record of the former network settings cannot be written."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The session marker cannot be written."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "The settings of the network service %1 cannot be changed."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The settings of the network service %1 cannot be read."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "The settings of the network service %1 could not be put back."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The system's firewall cannot be used (%1)."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The system's own Tor service (%1) cannot be stopped."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "The table of the applications' identities could not be removed (%1)."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The user %1 is not known on this system."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The user id is not a number."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The user is not known on this system."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The user name is not valid."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The user root needs no password for the helper."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The user with the id %1 is not known on this system."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The value of %1 contains control characters."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The value of %1 is too long."),
    QT_TRANSLATE_NOOP(
        "veldmark::Text",
        "The value of --as must be tor, lyrebird, snowflake-client or webtunnel-client."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The value of --lan must be 0 or 1."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The value of --separate must be 0 or 1."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "The value of --sha256 must be 64 small hexadecimal digits."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The value of --strict must be 0 or 1."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The verb fix-dns takes no options."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The verb uninstall-privileged takes no options."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The watcher of the firewall rules could not be started."),
    QT_TRANSLATE_NOOP("veldmark::Text", "The watcher of the firewall rules could not be stopped."),
    QT_TRANSLATE_NOOP("veldmark::Text", "There are too many options on standard input."),
    QT_TRANSLATE_NOOP("veldmark::Text", "There is no application at %1."),
    QT_TRANSLATE_NOOP("veldmark::Text", "There is no such application or program."),
    QT_TRANSLATE_NOOP("veldmark::Text", "These bridges need lyrebird, which was not given."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "These bridges need snowflake-client, which was not given."),
    QT_TRANSLATE_NOOP("veldmark::Text", "This helper is made for another system."),
    QT_TRANSLATE_NOOP("veldmark::Text", "Tor could not be started (%1)."),
    QT_TRANSLATE_NOOP("veldmark::Text", "Tor could not be stopped."),
    QT_TRANSLATE_NOOP("veldmark::Text", "Tor did not open its control port in time."),
    QT_TRANSLATE_NOOP("veldmark::Text", "Tor did not start: %1"),
    QT_TRANSLATE_NOOP("veldmark::Text", "Tor does not accept its configuration: %1"),
    QT_TRANSLATE_NOOP("veldmark::Text", "Tor's log files cannot be made."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "Two different callers were reported, so nothing was done."),
    QT_TRANSLATE_NOOP(
        "veldmark::Text",
        "Veldmark is in use by %1. An administrator password is needed to end that session."),
    QT_TRANSLATE_NOOP("veldmark::Text",
                      "Veldmark is not connected, so the DNS settings were left alone."),
    QT_TRANSLATE_NOOP("veldmark::Text", "a program (process %1)"),
    QT_TRANSLATE_NOOP("veldmark::Text", "a program of the account with the id %1"),
    QT_TRANSLATE_NOOP("veldmark::Text", "it ended without a message."),
    QT_TRANSLATE_NOOP("veldmark::Text", "sudo is not installed on this system."),
    QT_TRANSLATE_NOOP("veldmark::Text", "sudo rejects the rule for passwordless mode."),
};

// The helper's addition to a sentence when the kill switch stays on.
constexpr const char *staysClosed = QT_TRANSLATE_NOOP(
    "veldmark::Text", "The network stays blocked until you disconnect.");

struct Form {
    const char *source;
    qsizetype fixed; // characters
    QRegularExpression pattern;
};

// When two forms match, the one with more fixed characters counts.
const std::vector<Form> &forms()
{
    static const std::vector<Form> made = [] {
        static const QRegularExpression place(QStringLiteral("%\\d"));
        std::vector<Form> list;
        for (const char *source : sources) {
            QStringList parts = QString::fromUtf8(source).split(place);
            const qsizetype fixed = parts.join(QString()).size();
            for (QString &part : parts)
                part = QRegularExpression::escape(part);
            list.push_back({source, fixed,
                            QRegularExpression(QRegularExpression::anchoredPattern(
                                parts.join(QStringLiteral("(.+?)"))))});
        }
        std::stable_sort(list.begin(), list.end(),
                         [](const Form &a, const Form &b) { return a.fixed > b.fixed; });
        return list;
    }();
    return made;
}

} // namespace

Text recognised(const QString &line)
{
    const QString end = u' ' + QString::fromUtf8(staysClosed);
    if (line.size() > end.size() && line.endsWith(end))
        return Text::joined({recognised(line.chopped(end.size())), Text::tr(staysClosed)});
    for (const Form &form : forms()) {
        const auto match = form.pattern.match(line);
        if (!match.hasMatch())
            continue;
        Text text = Text::tr(form.source);
        for (const QString &argument : match.capturedTexts().mid(1))
            text = text.arg(recognised(argument));
        return text;
    }
    return line;
}

} // namespace veldmark::HelperSentences
