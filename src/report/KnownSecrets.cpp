#include "report/KnownSecrets.h"

#include "bridges/BridgeLines.h"
#include "doctor/Machine.h"
#include "platform/PlatformProfile.h"

#include <QJsonArray>
#include <QSysInfo>

#include <pwd.h>
#include <unistd.h>

namespace veldmark {

namespace {

constexpr uint firstUser = 1000; // on both systems' accounts of people; a Mac's begin at 501
constexpr uint firstMacUser = 501;
constexpr uint nobody = 65534;

bool isOfUser(const QString &home)
{
    return home.startsWith(QLatin1String("/home/")) || home.startsWith(QLatin1String("/Users/"))
        || home.startsWith(QLatin1String("/var/home/"));
}

void addAccount(KnownSecrets &known, const QString &login, const QString &owner,
                const QString &home)
{
    const QString fullName = owner.section(u',', 0, 0).trimmed();
    known.names << login << fullName;
    for (const QString &word : fullName.split(u' ', Qt::SkipEmptyParts)) {
        if (word.size() >= 3)
            known.names << word;
    }
    if (isOfUser(home))
        known.homes << home;
}

void addHost(KnownSecrets &known, const QString &name)
{
    const QString host = name.trimmed();
    known.names << host << host.section(u'.', 0, 0);
}

} // namespace

bool KnownSecrets::isOrdinary(const QString &name)
{
    static const QStringList ordinary
        = QStringLiteral(
              "root tor debian-tor toranon _veldmark veldmark nobody user users admin home name "
              "address bridge fingerprint hardware link path secret localhost localdomain debian "
              "ubuntu fedora arch linux mac macos report doctor session settings state")
              .split(u' ');
    return name.size() < 2 || ordinary.contains(name.toLower());
}

KnownSecrets KnownSecrets::of(const PlatformProfile &profile, const QJsonObject &state)
{
    KnownSecrets known;
    known.home = profile.places.home;

    const QString root = profile.places.root;
    const bool isMac = profile.promptKind == PromptKind::AppleScript;
    for (const QString &line :
         Machine::readFile(root + QStringLiteral("/etc/passwd")).split(u'\n')) {
        const QStringList fields = line.split(u':');
        const uint number = fields.value(2).toUInt();
        if (fields.size() >= 7 && number >= (isMac ? firstMacUser : firstUser) && number != nobody)
            addAccount(known, fields[0], fields[4], fields[5]);
    }
    if (const struct passwd *const own = ::getpwuid(::geteuid())) { // also from a directory service
        addAccount(known, QString::fromLocal8Bit(own->pw_name),
                   QString::fromLocal8Bit(own->pw_gecos), QString::fromLocal8Bit(own->pw_dir));
    }
    if (const QJsonObject other = state[QStringLiteral("otherSession")].toObject();
        !other.isEmpty())
        known.names << other[QStringLiteral("user")].toString();

    addHost(known, QSysInfo::machineHostName());
    addHost(known, Machine::readFile(root + QStringLiteral("/etc/hostname")));
    for (const QString &line :
         Machine::readFile(root + QStringLiteral("/etc/machine-info")).split(u'\n')) {
        if (line.startsWith(QLatin1String("PRETTY_HOSTNAME=")))
            addHost(known, line.section(u'=', 1).remove(u'"'));
    }

    const auto bridges = BridgeLines::parse(state[QStringLiteral("customBridges")].toString());
    known.bridgeLines = bridges.lines + bridges.invalid;
    const QJsonObject builtin
        = state[QStringLiteral("transports")][QStringLiteral("builtin")].toObject();
    for (const QJsonValue &lines : builtin) {
        for (const QJsonValue &line : lines.toArray())
            known.bridgeLines << line.toString();
    }

    const QString tor = state[QStringLiteral("customTorPath")].toString().trimmed();
    if (!profile.torCandidates.contains(tor))
        known.paths << tor;
    for (const QJsonValue &application : state[QStringLiteral("bypassApps")].toArray())
        known.paths << application.toString();
    return known;
}

} // namespace veldmark
