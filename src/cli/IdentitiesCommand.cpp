#include "cli/IdentitiesCommand.h"

#include "cli/Console.h"
#include "platform/PlatformProfile.h"
#include "system/IdentityProgram.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QThread>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>

#include <unistd.h>

namespace veldmark {

namespace {

constexpr qint64 noteLimitBytes = 4 << 20;
constexpr int readings = 20; // the program may be writing it at that moment

Text whyNone(const PlatformProfile &profile)
{
    return profile.identitiesNote.isEmpty()
        ? Text::tr("This system can't tell applications apart.")
        : Text::tr("Applications are not separated now: they share circuits.");
}

bool isMine(const Identities::Identity &identity)
{
    return geteuid() == 0 || identity.user == geteuid();
}

ExitStatus fail(const Text &reason, ExitStatus status = ExitStatus::failed)
{
    Console::printError(reason);
    return status;
}

// The script that runs in the group: REASON PATTERN FILE PROGRAM…. Prints the reason when it gets
// no identity.
const QString waitInGroup = QStringLiteral(R"(reason=$1 pattern=$2 file=$3 tries=0
shift 3
until grep -qx -- "$pattern" "$file"; do
    tries=$((tries + 1))
    [ $tries -lt 100 ] || { printf 'veldmarkctl: %s\n' "$reason" >&2; exit 1; }
    sleep 0.05
done
exec "$@")");

} // namespace

std::optional<Identities> Identities::parse(const QByteArray &text)
{
    const QList<QByteArray> lines = text.split('\n');
    if (lines.size() < 4 || !lines.constLast().isEmpty()
        || !lines.constFirst().startsWith("identities "))
        return std::nullopt;
    if (lines[lines.size() - 2] != "end " + lines.constFirst().mid(11)
        || (lines[1] != "standing" && lines[1] != "lost"))
        return std::nullopt;
    Identities found;
    found.standing = lines[1] == "standing";
    static const QRegularExpression line(
        QStringLiteral("^([0-9]{1,10}) (127(?:\\.[0-9]{1,3}){3}) ([!-~]+)$"));
    for (const QByteArray &entry : lines.mid(2, lines.size() - 4)) {
        const auto words = line.match(QString::fromLatin1(entry));
        if (!words.hasMatch())
            return std::nullopt;
        found.all.push_back({static_cast<uid_t>(words.captured(1).toULongLong()), words.captured(2),
                             words.captured(3)});
    }
    return found;
}

std::optional<Identities> Identities::read(const PlatformProfile &profile)
{
    if (profile.identitiesNote.isEmpty() || !IdentityProgram(profile).isThere())
        return std::nullopt;
    for (int reading = 0; reading < readings; ++reading) {
        QFile file(profile.identitiesNote);
        if (!file.open(QIODevice::ReadOnly))
            return std::nullopt;
        if (const auto found = parse(file.read(noteLimitBytes)))
            return found;
        QThread::msleep(5);
    }
    return std::nullopt;
}

QCoro::Task<ExitStatus> showIdentities(Invocation invocation, PlatformProfile profile)
{
    const auto known = Identities::read(profile);
    const bool standing = known && known->standing;
    QJsonArray json;
    QStringList lines;
    qsizetype width = 0;
    std::vector<Identities::Identity> shown;
    if (standing)
        std::copy_if(known->all.begin(), known->all.end(), std::back_inserter(shown), isMine);
    for (const auto &identity : shown)
        width = std::max(width, identity.application.size());
    for (const auto &identity : shown) {
        json.append(QJsonObject{{QStringLiteral("application"), identity.application},
                                {QStringLiteral("address"), identity.address},
                                {QStringLiteral("user"), static_cast<qint64>(identity.user)}});
        lines << identity.application.leftJustified(width) + QStringLiteral("  ") + identity.address
                + (geteuid() == 0
                       ? QStringLiteral("  ") + Text::tr("user %1").arg(identity.user).translated()
                       : QString());
    }
    if (invocation.json) {
        const QJsonObject all{{QStringLiteral("separated"), standing},
                              {QStringLiteral("identities"), json}};
        Console::print(QString::fromUtf8(QJsonDocument(all).toJson(QJsonDocument::Compact)));
        co_return ExitStatus::done;
    }
    if (!standing)
        co_return fail(whyNone(profile));
    Console::print(lines.isEmpty() ? Text::tr("No application has an identity of its own now.")
                                   : Text(lines.join(u'\n')));
    co_return ExitStatus::done;
}

QCoro::Task<ExitStatus> renewIdentity(Invocation invocation, PlatformProfile profile)
{
    const auto known = Identities::read(profile);
    if (!known || !known->standing)
        co_return fail(whyNone(profile));
    const auto addressIn = [&invocation](const Identities &identities) {
        const auto found = std::find_if(identities.all.begin(), identities.all.end(),
                                        [&invocation](const Identities::Identity &identity) {
                                            return identity.user == geteuid()
                                                && identity.application == invocation.key;
                                        });
        return found == identities.all.end() ? QString() : found->address;
    };
    const QString former = addressIn(*known);
    if (former.isEmpty())
        co_return fail(
            Text::tr(
                "No application of yours has that identity; \"veldmarkctl identities\" lists them."),
            ExitStatus::usage);
    if (!IdentityProgram(profile).send("new " + invocation.key.toLatin1()))
        co_return fail(whyNone(profile));
    for (int waits = 0; waits < 100; ++waits) {
        const auto now = Identities::read(profile);
        if (now && addressIn(*now) != former)
            co_return ExitStatus::done;
        QThread::msleep(20);
    }
    co_return fail(Text::tr("The application did not get a new identity."));
}

QStringList runAsWords(const QString &name, const QString &start, uid_t user,
                       const PlatformProfile &profile, const QStringList &program)
{
    return QStringList{
               QStringLiteral("systemd-run"),
               QStringLiteral("--user"),
               QStringLiteral("--scope"),
               QStringLiteral("--quiet"),
               QStringLiteral("--collect"),
               QStringLiteral("--slice=app.slice"),
               QStringLiteral("--unit=app-veldmark-%1-%2.scope").arg(name, start),
               QStringLiteral("--"),
               QStringLiteral("/bin/sh"),
               QStringLiteral("-c"),
               waitInGroup,
               QStringLiteral("veldmarkctl"),
               Text::tr("The program did not get an identity of its own, so it was not started.")
                   .translated(),
               QStringLiteral(R"(%1 [0-9.]* as:%2)")
                   .arg(user)
                   .arg(QString(name).replace(u'.', QStringLiteral("\\."))),
               profile.identitiesNote}
    + program;
}

QCoro::Task<ExitStatus> runAs(Invocation invocation, PlatformProfile profile)
{
    static const QRegularExpression names(QStringLiteral("\\A[A-Za-z0-9_.]{1,40}\\z"));
    if (!names.match(invocation.key).hasMatch())
        co_return fail(Text::tr("A name has up to 40 letters, digits, dots and underscores."),
                       ExitStatus::usage);
    const auto known = Identities::read(profile);
    if (!known || !known->standing)
        co_return fail(whyNone(profile));
    const QString start = QString::number(QRandomGenerator::system()->generate());
    std::vector<QByteArray> words;
    for (const QString &word :
         runAsWords(invocation.key, start, geteuid(), profile, invocation.program))
        words.push_back(QFile::encodeName(word));
    std::vector<char *> arguments;
    for (QByteArray &word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    execvp(arguments.front(), arguments.data());
    co_return fail(
        errno == ENOENT ? Text::tr(
            "The program systemd-run is missing. Veldmark needs it to make a group for a program.")
                        : Text::tr("The program could not be started: %1.")
                              .arg(QString::fromLocal8Bit(std::strerror(errno))));
}

} // namespace veldmark
