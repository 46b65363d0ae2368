#include "report/StandIns.h"

namespace veldmark {

namespace {

QString word(StandIns::Kind kind)
{
    switch (kind) {
    case StandIns::Kind::address:
        return QStringLiteral("address");
    case StandIns::Kind::bridge:
        return QStringLiteral("bridge");
    case StandIns::Kind::fingerprint:
        return QStringLiteral("fingerprint");
    case StandIns::Kind::hardware:
        return QStringLiteral("hardware");
    case StandIns::Kind::home:
        return QStringLiteral("home");
    case StandIns::Kind::link:
        return QStringLiteral("link");
    case StandIns::Kind::name:
        return QStringLiteral("name");
    case StandIns::Kind::path:
        return QStringLiteral("path");
    case StandIns::Kind::ownHome:
    case StandIns::Kind::secret:
        break;
    }
    return QStringLiteral("secret");
}

QString keyOf(StandIns::Kind kind, const QString &key)
{
    return QString::number(static_cast<int>(kind)) + u':' + key;
}

} // namespace

QChar StandIns::of(Kind kind, const QString &key)
{
    const QString known = keyOf(kind, key);
    if (const auto found = m_known.constFind(known); found != m_known.cend())
        return *found;
    // The last character stands for every value for which none is left.
    const bool isFull = m_entries.size() > last - first;
    if (!isFull)
        m_entries.push_back({m_entries.size() == last - first ? Kind::secret : kind});
    const QChar standIn(static_cast<char16_t>(first + m_entries.size() - 1));
    if (!isFull)
        m_known.insert(known, standIn);
    return standIn;
}

void StandIns::alias(Kind kind, const QString &key, QChar other)
{
    const QString known = keyOf(kind, key);
    if (!m_known.contains(known))
        m_known.insert(known, other);
}

StandIns::Kind StandIns::kindOf(QChar standIn) const
{
    return m_entries[static_cast<std::size_t>(standIn.unicode() - first)].kind;
}

QString StandIns::expanded(const QString &text)
{
    QString shown;
    for (const QChar c : text) {
        if (!isStandIn(c)) {
            shown += c;
            continue;
        }
        Entry &entry = m_entries[static_cast<std::size_t>(c.unicode() - first)];
        if (entry.kind == Kind::ownHome) {
            shown += u'~';
            continue;
        }
        if (entry.number == 0)
            entry.number = ++m_counts[static_cast<int>(entry.kind)];
        shown += word(entry.kind) + u'-' + QString::number(entry.number);
    }
    return shown;
}

} // namespace veldmark
