#include "cli/IdentitiesCommand.h"

#include "cli/Console.h"
#include "instance/InstanceClient.h"
#include "platform/PlatformProfile.h"
#include "system/Identities.h"
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
#include <memory>

#include <unistd.h>

namespace veldmark {

namespace {

Text whyNone(const PlatformProfile &profile)
{
    return profile.identitiesNote.isEmpty()
        ? Text::tr("This system can't tell applications apart.")
        : Text::tr("Applications are not separated now: they share circuits.");
}

ExitStatus fail(const Text &reason, ExitStatus status = ExitStatus::failed)
{
    Console::printError(reason);
    return status;
}

// The circuits of the running instance; none without a connected one.
QCoro::Task<QJsonArray> presentCircuits(PlatformProfile profile)
{
    const auto instance = InstanceClient::connectTo(profile);
    if (!instance)
        co_return QJsonArray();
    const auto last = std::make_shared<QJsonArray>();
    const InstanceClient::OnState onState = [last](const QJsonObject &state, const QJsonObject &) {
        *last = state.value(QStringLiteral("circuits")).toArray();
    };
    const QJsonObject request{{QStringLiteral("command"), verbOf(Verb::Id::circuits).requested()}};
    auto asking = instance->run(request, onState);
    const auto answer = co_await asking;
    co_return answer ? *last : QJsonArray();
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

QJsonArray exitsOf(const QString &application, const QJsonArray &circuits)
{
    struct Exit {
        QJsonValue ip, country;
        QStringList sites;
    };
    std::vector<Exit> exits; // few
    for (const QJsonValue &circuit : circuits) {
        const QJsonObject askedBy = circuit[QStringLiteral("askedBy")].toObject();
        QStringList sites;
        for (const QJsonValue &site : circuit[QStringLiteral("sites")].toArray()) {
            if (askedBy.value(site.toString()).toArray().contains(application))
                sites << site.toString();
        }
        if (sites.isEmpty())
            continue;
        const QJsonArray hops = circuit[QStringLiteral("hops")].toArray();
        Exit exit{QJsonValue::Null, QJsonValue::Null, {}};
        if (circuit[QStringLiteral("purpose")] != QLatin1String("HS_CLIENT_REND")
            && !hops.isEmpty()) {
            exit.ip = hops.last()[QStringLiteral("ip")];
            exit.country = hops.last()[QStringLiteral("country")];
        }
        auto found = std::find_if(exits.begin(), exits.end(), [&exit](const Exit &other) {
            return other.ip == exit.ip && other.country == exit.country;
        });
        if (found == exits.end())
            found = exits.insert(found, exit);
        found->sites << sites;
        found->sites.removeDuplicates();
    }
    QJsonArray json;
    for (const Exit &exit : exits)
        json.append(QJsonObject{{QStringLiteral("ip"), exit.ip},
                                {QStringLiteral("country"), exit.country},
                                {QStringLiteral("sites"), QJsonArray::fromStringList(exit.sites)}});
    return json;
}

QString exitLine(const QJsonObject &exit)
{
    QStringList place;
    for (const QString &part : {exit.value(QStringLiteral("country")).toString().toUpper(),
                                exit.value(QStringLiteral("ip")).toString()}) {
        if (!part.isEmpty())
            place << part;
    }
    QStringList sites;
    for (const QJsonValue &site : exit.value(QStringLiteral("sites")).toArray())
        sites << site.toString();
    return (place.isEmpty() ? QString() : place.join(u' ') + QStringLiteral(": "))
        + sites.join(QStringLiteral(", "));
}

QCoro::Task<ExitStatus> showIdentities(Invocation invocation, PlatformProfile profile)
{
    const auto known = Identities::read(profile);
    const bool standing = known && known->standing;
    QJsonArray circuits;
    if (standing)
        circuits = co_await presentCircuits(profile);
    QJsonArray json;
    QStringList lines;
    qsizetype width = 0;
    std::vector<Identities::Identity> shown;
    if (standing)
        std::copy_if(known->all.begin(), known->all.end(), std::back_inserter(shown),
                     [](const Identities::Identity &identity) { return identity.isMine(); });
    for (const auto &identity : shown)
        width = std::max(width, identity.application.size());
    for (const auto &identity : shown) {
        const QJsonArray exits = exitsOf(identity.application, circuits);
        json.append(QJsonObject{{QStringLiteral("application"), identity.application},
                                {QStringLiteral("address"), identity.address},
                                {QStringLiteral("user"), static_cast<qint64>(identity.user)},
                                {QStringLiteral("exits"), exits}});
        lines << identity.application.leftJustified(width) + QStringLiteral("  ") + identity.address
                + (geteuid() == 0
                       ? QStringLiteral("  ") + Text::tr("user %1").arg(identity.user).translated()
                       : QString());
        for (const QJsonValue &exit : exits)
            lines << QStringLiteral("    ") + exitLine(exit.toObject());
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
