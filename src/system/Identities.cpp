#include "system/Identities.h"

#include "platform/PlatformProfile.h"
#include "system/IdentityProgram.h"

#include <QFile>
#include <QRegularExpression>
#include <QThread>

#include <unistd.h>

namespace veldmark {

namespace {

constexpr qint64 identitiesLimitBytes = 4 << 20;

} // namespace

bool Identities::Identity::isMine() const
{
    return geteuid() == 0 || user == geteuid();
}

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

std::optional<Identities> Identities::read(const PlatformProfile &profile, int readings)
{
    if (profile.identitiesNote.isEmpty() || !IdentityProgram(profile).isThere())
        return std::nullopt;
    for (int reading = 0; reading < readings; ++reading) {
        QFile file(profile.identitiesNote);
        if (!file.open(QIODevice::ReadOnly))
            return std::nullopt;
        if (const auto found = parse(file.read(identitiesLimitBytes)))
            return found;
        if (reading + 1 < readings)
            QThread::msleep(5);
    }
    return std::nullopt;
}

} // namespace veldmark
