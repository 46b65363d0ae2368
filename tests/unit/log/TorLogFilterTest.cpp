#include "log/TorLogFilter.h"
#include "support/TestProgram.h"

#include <QLocale>
#include <QScopeGuard>
#include <QTest>

using namespace veldmark;

namespace {
QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

TorLog::Snapshot snapshot(const QStringList &raws)
{
    QList<TorLogLine> lines;
    for (const QString &raw : raws)
        lines.append(TorLogLine::parse(raw, static_cast<int>(lines.size())));
    return TorLog::Snapshot::of(lines);
}

const QStringList sample{text("Nov 16 00:41:07.123 [notice] Bootstrapped 5%"),
                         text("Nov 16 00:41:08.123 [warn] Guard is down"), text("an error"),
                         text("Straße")};

QString shownIDs(const TorLogFilter &filter, const TorLog::Snapshot &log)
{
    QStringList ids;
    for (const TorLogLine &line : filter.shown(log))
        ids.append(QString::number(line.id));
    return ids.join(u' ');
}
} // namespace

class TorLogFilterTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void picksLines_data()
    {
        QTest::addColumn<bool>("problemsOnly");
        QTest::addColumn<QString>("search");
        QTest::addColumn<QString>("ids");
        QTest::newRow("all") << false << QString() << text("0 1 2 3");
        QTest::newRow("problems") << true << QString() << text("1 2");
        QTest::newRow("search") << false << text("guard") << text("1");
        QTest::newRow("blanks round it") << false << text("  GUARD is ") << text("1");
        QTest::newRow("only blanks") << false << text("   ") << text("0 1 2 3");
        QTest::newRow("the time") << false << text("00:41:07") << text("0");
        QTest::newRow("the level") << false << text("[notice]") << text("0");
        QTest::newRow("beyond ASCII") << false << text("STRASSE") << QString();
        QTest::newRow("beyond ASCII, same letters") << false << text("straßE") << text("3");
        QTest::newRow("both") << true << text("error") << text("2");
        QTest::newRow("both, none") << true << text("boot") << QString();
    }
    void picksLines()
    {
        QFETCH(bool, problemsOnly);
        QFETCH(QString, search);
        QFETCH(QString, ids);
        QCOMPARE(shownIDs({problemsOnly, search}, snapshot(sample)), ids);
        QCOMPARE(shownIDs({problemsOnly, search}, TorLog::Snapshot()), QString());
    }

    void comparesLettersAsTheUsersLanguageDoes()
    {
        const TorLog::Snapshot log = snapshot({text("DIŞI"), text("dışı")});
        QCOMPARE(shownIDs({false, text("dışı")}, log), text("1"));
        const auto restore = qScopeGuard([] { QLocale::setDefault(QLocale::system()); });
        QLocale::setDefault(QLocale(QLocale::Turkish));
        QCOMPARE(shownIDs({false, text("dışı")}, log), text("0 1"));
        QCOMPARE(shownIDs({false, text("DIŞI")}, log), text("0 1"));
    }

    void countsProblems()
    {
        QCOMPARE(TorLogFilter::problemCount(snapshot(sample)), 2);
        QCOMPARE(TorLogFilter::problemCount(TorLog::Snapshot()), 0);
    }

    void saysWhyNothingIsShown()
    {
        const QString folder = text("/var/lib/%2/run");
        const auto words = [&](const TorLogFilter &filter, const TorLog::Snapshot &log) {
            const auto placeholder = filter.placeholder(log, filter.shown(log), folder);
            return placeholder ? placeholder->title.english() + u'|' + placeholder->text.english()
                               : QString();
        };
        QCOMPARE(
            words({}, TorLog::Snapshot::unreadable()),
            text(
                "Can't read Tor's log|The log files in /var/lib/%2/run aren't readable by your account. "
                "Reconnect once with this version of Veldmark to fix their permissions."));
        QCOMPARE(
            words({true, text("x")}, TorLog::Snapshot()),
            text("No log yet|Connect, and Tor's messages appear here as it starts. If Tor fails to "
                 "start, the reason shows up here."));
        const TorLog::Snapshot calm = snapshot({text("all is well")});
        QCOMPARE(words({}, calm), QString());
        QCOMPARE(words({true, {}}, calm), text("No warnings or errors. Tor is happy.|"));
        QCOMPARE(words({false, text(" x%1 ")}, calm),
                 text("Nothing matches|No lines contain \u201cx%1\u201d"));
        QCOMPARE(words({true, text("x")}, calm),
                 text("Nothing matches|No lines contain \u201cx\u201d"));
        QCOMPARE(words({true, text("  ")}, calm), text("No warnings or errors. Tor is happy.|"));
    }

    void copiesWholeLines()
    {
        const TorLogFilter filter{true, {}};
        QCOMPARE(TorLogFilter::copyText(filter.shown(snapshot(sample))),
                 text("Nov 16 00:41:08.123 [warn] Guard is down\nan error"));
    }
};

VELDMARK_BARE_TEST(TorLogFilterTest)
#include "TorLogFilterTest.moc"
