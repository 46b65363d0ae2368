#pragma once

#include "report/StandIns.h"

#include <QRegularExpression>
#include <QString>

#include <functional>
#include <vector>

// The room of the report that a user may show to others: Redactor takes the secrets out of any
// text, SupportReport is the report's text, ReportMaker collects it, and ReportFile saves it.
namespace veldmark {

struct KnownSecrets;

// Replaces what tells of a user or a network in a text of many lines by stand-ins, the same for the
// same value in every text that one redactor gets: first the known values, then what looks like an
// address, a name, a bridge, a fingerprint, a path in a home, or a password. In doubt it replaces.
// A line that is too long, or that a pattern fails on, is left out as a whole.
//
// Kept: addresses of the loopback device and of no host, the networks that every firewall names,
// numbers that begin with "0." (Tor's versions), ports, times, and files of the system.
class Redactor {
public:
    static constexpr qsizetype longestLine = 2000; // characters

    explicit Redactor(const KnownSecrets &known);
    Redactor(const Redactor &) = delete;
    Redactor &operator=(const Redactor &) = delete;

    QString redacted(const QString &text);

private:
    using Judge = std::function<QString(const QRegularExpressionMatch &)>;
    struct Rule {
        QRegularExpression pattern;
        Judge replacement; // for a match: its stand-in, or the match itself
    };

    void knowBridge(const QString &line);
    void knowName(const QString &name);
    void knowPath(const QString &path, StandIns::Kind kind);
    void know(const QString &value, QChar standIn, bool isWord);
    void extendLast(const QString &pattern); // of the known values
    void addPatterns();
    void add(const QString &pattern, Judge replacement);
    void add(const QString &pattern, StandIns::Kind kind); // the whole match is the value
    QString redactedLine(QString line) const;

    QString bridgeOf(const QString &line);
    QString tailOfHome(const QRegularExpressionMatch &match);

    StandIns m_standIns;
    struct KnownSecret {
        qsizetype length;
        Rule rule;
    };
    std::vector<KnownSecret> m_known; // the longest first
    std::vector<Rule> m_rules;        // in the order of their use
};

} // namespace veldmark
