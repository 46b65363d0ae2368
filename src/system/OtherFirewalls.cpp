#include "system/OtherFirewalls.h"

#include "base/FileContent.h"
#include "platform/PlatformProfile.h"

#include <QFile>
#include <QRegularExpression>

namespace veldmark::OtherFirewalls {

namespace {

constexpr qint64 limit = 64 * 1024; // no such file is nearly as long

QString read(const QString &path)
{
    return QString::fromUtf8(contentOf(path, limit));
}

// Whether a line of `text`, a shell file, sets `name` to a value that begins with `value`.
bool sets(const QString &text, const char *name, const char *value)
{
    const QRegularExpression line(QStringLiteral("^\\s*%1\\s*=\\s*[\"']?(%2)\\b")
                                      .arg(QLatin1String(name), QLatin1String(value)),
                                  QRegularExpression::MultilineOption
                                      | QRegularExpression::CaseInsensitiveOption);
    return line.match(text).hasMatch();
}

} // namespace

bool isUfwOn(const PlatformProfile &profile)
{
    return sets(read(profile.places.root + QStringLiteral("/etc/ufw/ufw.conf")), "ENABLED", "yes");
}

bool isUfwWithoutAWayOut(const PlatformProfile &profile)
{
    static const QRegularExpression rule(QStringLiteral("^\\s*-[AI] ufw6?-[a-z]+-output "));
    // Rules that let out nothing new: to this computer, answers, and network control messages.
    static const QRegularExpression harmless(QStringLiteral(
        " -o lo | (RELATED,)?ESTABLISHED |-p (icmp|icmpv6|ipv6-icmp) | -j (DROP|REJECT|RETURN|LOG)"));
    for (const char *name : {"before", "user", "after", "before6", "user6", "after6"}) {
        QFile file(profile.places.root
                   + QStringLiteral("/etc/ufw/%1.rules").arg(QLatin1String(name)));
        if (!file.open(QIODevice::ReadOnly) || file.size() > limit)
            return false;
        for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n'))
            if (line.contains(rule) && !line.contains(harmless))
                return false;
    }
    return true;
}

QStringList denying(const PlatformProfile &profile)
{
    if (profile.promptKind != PromptKind::PolicyKit)
        return {};
    QStringList names;
    static const QRegularExpression name(QStringLiteral("^[A-Za-z0-9_./ -]{1,80}$"));
    if (QFile::exists(profile.sessionMarker)) {
        for (const QString &line : read(profile.othersNote).split(u'\n', Qt::SkipEmptyParts))
            if (name.match(line).hasMatch() && !names.contains(line))
                names << line;
    }
    const QString ufw = QStringLiteral("ufw");
    if (!names.contains(ufw) && isUfwOn(profile)
        && sets(read(profile.places.root + QStringLiteral("/etc/default/ufw")),
                "DEFAULT_OUTPUT_POLICY", "DROP|REJECT"))
        names << ufw;
    return names;
}

} // namespace veldmark::OtherFirewalls
