#include "log/TransportTrouble.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {

const QString pt = u"/var/lib/veldmark/programs/0a1b/lyrebird"_s;
const QString ended
    = u"[warn] Managed proxy \"%1\" having PID 13 terminated with status code 1"_s.arg(pt);
const QString died = u"[warn] Managed proxy at '%1' died in state Launched"_s.arg(pt);
const QString killedByTor
    = u"[warn] Managed proxy \"N/A\" having PID 40 terminated with status code 18446744073709551615"_s;
const QString givenUp
    = u"[warn] Managed proxy at '%1' failed the configuration protocol and will be destroyed."_s
          .arg(pt);
const QString noTransport
    = u"[warn] Can't use bridge at [scrubbed]: there is no configured transport called \"obfs4\"."_s;
const QString garbage = u"[notice] Unknown line received by managed proxy (GARBAGE)."_s;
const QString movesOn = u"[notice] Bootstrapped 10% (conn_done): Connected to a relay"_s;

std::optional<Text> trouble(const QStringList &messages)
{
    QList<TorLogLine> lines;
    for (const QString &message : messages)
        lines.append(
            TorLogLine::parse(u"Nov 21 00:55:29.000 "_s + message, static_cast<int>(lines.size())));
    return transportTrouble(lines);
}

} // namespace

// The lines are those that tor 0.4.9 writes.
class TransportTroubleTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void tellsWhatIsWrong_data()
    {
        QTest::addColumn<QStringList>("log");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("ended once")
            << QStringList{ended, died}
            << u"The bridge program lyrebird ended unexpectedly (exit status 1)."_s;
        QTest::newRow("again and again")
            << QStringList{ended, died, ended, ended}
            << u"The bridge program lyrebird keeps ending (exit status 1)."_s;
        QTest::newRow("killed by a signal")
            << QStringList{QString(ended).replace(u"code 1"_s, u"code 18446744073709551615"_s)}
            << u"The bridge program lyrebird ended unexpectedly."_s;
        QTest::newRow("garbage")
            << QStringList{garbage, garbage}
            << u"The bridge program printed something that Tor doesn't understand: \"GARBAGE\"."_s;
        QTest::newRow("garbage, then its end")
            << QStringList{garbage, ended}
            << u"The bridge program lyrebird ended unexpectedly (exit status 1). It said: \"GARBAGE\"."_s;
        QTest::newRow("an error, then its end")
            << QStringList{u"[err] Managed proxy \"%1\": cannot open /x"_s.arg(pt), ended, ended}
            << u"The bridge program lyrebird keeps ending (exit status 1). It said: \"cannot open /x\"."_s;
        QTest::newRow("its own error")
            << QStringList{u"[err] Managed proxy \"%1\": handshake failed badly"_s.arg(pt)}
            << u"The bridge program lyrebird reports: handshake failed badly."_s;
        QTest::newRow("a method error, and what it caused")
            << QStringList{u"[warn] Client managed proxy encountered a method error. (obfs4 no luck today)"_s,
                           u"[warn] Managed proxy '%1' was spawned successfully, but it didn't launch any pluggable "
                           "transport listeners!"_s.arg(pt),
                           noTransport}
            << u"Tor has trouble with the bridge program: Client managed proxy encountered a method error. "
               "(obfs4 no luck today)."_s;
        QTest::newRow("another protocol")
            << QStringList{u"[warn] Managed proxy could not pick a configuration protocol version."_s,
                           givenUp, killedByTor, noTransport}
            << u"Tor has trouble with the bridge program: Managed proxy could not pick a configuration protocol version."_s;
        QTest::newRow("ended by Tor")
            << QStringList{givenUp, killedByTor}
            << u"Tor has trouble with the bridge program: Managed proxy at '%1' failed the "
               "configuration protocol and will be destroyed."_s.arg(pt);
        QTest::newRow("after Tor had got on")
            << QStringList{ended, movesOn, ended}
            << u"The bridge program lyrebird ended unexpectedly (exit status 1)."_s;
    }

    void tellsWhatIsWrong()
    {
        QFETCH(QStringList, log);
        const auto sentence = trouble(log);
        QVERIFY(sentence);
        QTEST(sentence->english(), "sentence");
    }

    void saysNothing_data()
    {
        QTest::addColumn<QStringList>("log");
        QTest::newRow("no line") << QStringList();
        QTest::newRow("ordinary lines")
            << QStringList{u"[notice] Delaying directory fetches: No running bridges"_s,
                           u"[warn] Your Guard is failing."_s};
        QTest::newRow("Tor has got on since") << QStringList{ended, ended, movesOn};
        QTest::newRow("a program's own notice")
            << QStringList{u"[notice] Managed proxy \"%1\": offer created"_s.arg(pt)};
        QTest::newRow("an end without a reason") << QStringList{died};
        QTest::newRow("a reloaded configuration")
            << QStringList{u"[notice] Managed proxy at '%1' has spawned with PID '14'."_s.arg(pt)};
    }

    void saysNothing()
    {
        QFETCH(QStringList, log);
        QCOMPARE(trouble(log), std::nullopt);
    }

    void wordsAreCutBehindTheirLimit()
    {
        for (const qsizetype size : {120, 121}) {
            const QString words(size, u'x');
            const auto said = trouble(
                {u"[notice] Unknown line received by managed proxy (%1)."_s.arg(words)});
            QVERIFY(said);
            const QString shown = size == 120 ? words : words.left(119) + u'…';
            QVERIFY2(said->english().contains(u'"' + shown + u'"'), qPrintable(said->english()));
        }
    }

    void aProgramsWordsStayOneShortLine()
    {
        const QString words = QString::fromUtf8("\x1b[31mred\tand\xE2\x80\xA8")
            + QString(4000, u'x');
        const QString sentence
            = trouble({u"[notice] Unknown line received by managed proxy (%1)."_s.arg(words)})
                  .value_or(Text())
                  .english();
        QVERIFY(sentence.contains(u"\"?[31mred and xxx"_s));
        QVERIFY2(sentence.size() < 220, qPrintable(sentence));
        for (const QChar c : sentence)
            QVERIFY(c.isPrint());
    }
};

VELDMARK_TEST(TransportTroubleTest)
#include "TransportTroubleTest.moc"
