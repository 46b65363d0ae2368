#include "checks/KillSwitch.h"

#include <QByteArrayList>

namespace veldmark {

std::optional<KillSwitch> KillSwitch::parse(const QByteArray &note)
{
    const QByteArrayList words = note.trimmed().split(' ');
    if (words.size() != 3)
        return std::nullopt;
    KillSwitch found;
    if (words[0] == "standing")
        found.state = State::standing;
    else if (words[0] == "restored")
        found.state = State::putBack;
    else if (words[0] == "open")
        found.state = State::open;
    else
        return std::nullopt;
    bool isCount = false;
    bool isTime = false;
    found.missed = words[1].toInt(&isCount);
    const qint64 seconds = words[2].toLongLong(&isTime);
    if (!isCount || found.missed < 0 || !isTime || seconds < 0)
        return std::nullopt;
    found.since = QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
    return found;
}

Text KillSwitch::putBackText()
{
    return Text::tr("Another program removed Veldmark's firewall rules; they are back in place.");
}

QString KillSwitch::name() const
{
    switch (state) {
    case State::standing:
        return QStringLiteral("standing");
    case State::putBack:
        return QStringLiteral("putBack");
    case State::open:
        return QStringLiteral("open");
    case State::unknown:
        break;
    }
    return QStringLiteral("unknown");
}

} // namespace veldmark
