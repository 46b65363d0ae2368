#pragma once

#include <QChar>
#include <QHash>
#include <QString>

#include <vector>

namespace veldmark {

// The stand-ins of one report. While a text is being redacted each stand-in is one character of
// Unicode's private area, which no pattern matches; expanded() writes them out: "address-1", "~".
// The numbers follow the order in which the stand-ins first appear. Any one thread.
class StandIns {
public:
    enum class Kind {
        address,
        bridge,
        fingerprint,
        hardware,
        home,
        link,
        name,
        ownHome,
        path,
        secret
    };

    // The stand-in of a value: the same one for the same kind and key.
    QChar of(Kind kind, const QString &key);
    // From now on the value has the stand-in `other`, unless it has one already.
    void alias(Kind kind, const QString &key, QChar other);
    Kind kindOf(QChar standIn) const;

    // The text with every stand-in written out.
    QString expanded(const QString &text);

    static bool isStandIn(QChar c) { return c.unicode() >= first && c.unicode() <= last; }
    // For patterns.
    static QString characterClass() { return QStringLiteral("[\\x{E000}-\\x{F8FF}]"); }

private:
    static constexpr char16_t first = 0xE000;
    static constexpr char16_t last = 0xF8FF;

    struct Entry {
        Kind kind;
        int number = 0; // 0: it has not appeared yet
    };
    std::vector<Entry> m_entries;
    QHash<QString, QChar> m_known; // by kind and key
    QHash<int, int> m_counts;      // of the numbers given, by kind
};

} // namespace veldmark
