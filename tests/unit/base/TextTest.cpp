#include "base/Text.h"
#include "support/TestProgram.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QTranslator>

using namespace veldmark;

namespace {

// A language with a few texts, which it puts in brackets. It reverses arguments, and has two plural
// forms.
class Brackets final : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *comment,
                      int count) const override
    {
        if (qstrcmp(context, "veldmark::Text") != 0)
            return {};
        static const QHash<QString, QString> known{
            {QStringLiteral("Starting Tor…"), QStringLiteral("[Starting Tor…]")},
            {QStringLiteral("Testing speed (%1 of %2)…"), QStringLiteral("[%2: %1]")},
            {QStringLiteral("Couldn't set up terminal mode: %1"),
             QStringLiteral("[setting up: %1]")},
            {QStringLiteral("%1 is read-only."), QStringLiteral("[%1, read-only]")}};
        const QString text = QString::fromUtf8(source);
        if (text == u"%n bridges of %1")
            return count == 1 ? QStringLiteral("[one of %1]") : QStringLiteral("[%n of %1]");
        if (text == u"open")
            return comment ? QStringLiteral("[open as ") + QString::fromUtf8(comment) + u']'
                           : QStringLiteral("[to open]");
        return known.value(text);
    }
};

QString shown(const Text &text)
{
    return text.english() + u'|' + text.translated();
}

// The text as a process of another language receives it.
Text sent(const Text &text)
{
    const QByteArray line
        = QJsonDocument(QJsonObject{{QStringLiteral("t"), text.toJson()}}).toJson();
    return Text::fromJson(QJsonDocument::fromJson(line).object().value(QStringLiteral("t")));
}

} // namespace

class TextTest : public QObject {
    Q_OBJECT

    Brackets brackets;

private Q_SLOTS:
    void initTestCase() { QCoreApplication::installTranslator(&brackets); }

    void isEnglishAndTheUsersLanguage_data()
    {
        QTest::addColumn<QString>("wanted");
        const auto row = [](const char *name, const Text &text, const QString &wanted) {
            QTest::newRow(name) << wanted;
            texts().insert(QString::fromLatin1(name), text);
        };
        row("a sentence", Text::tr("Starting Tor…"),
            QStringLiteral("Starting Tor…|[Starting Tor…]"));
        row("nothing", Text(), QStringLiteral("|"));
        row("words are nobody's to translate", Text(QStringLiteral("Starting Tor…")),
            QStringLiteral("Starting Tor…|Starting Tor…"));
        row("one that the language lacks", Text::tr("Guard %1 is down").arg(7),
            QStringLiteral("Guard 7 is down|Guard 7 is down"));
        row("numbers, in the language's order", Text::tr("Testing speed (%1 of %2)…").arg(2, 3),
            QStringLiteral("Testing speed (2 of 3)…|[3: 2]"));
        row("filled one after the other",
            Text::tr("Testing speed (%1 of %2)…").arg(2).arg(QStringLiteral("x")),
            QStringLiteral("Testing speed (2 of x)…|[x: 2]"));
        row("a text within a text",
            Text::tr("Couldn't set up terminal mode: %1")
                .arg(Text::tr("%1 is read-only.").arg(QStringLiteral("/a"))),
            QStringLiteral(
                "Couldn't set up terminal mode: /a is read-only.|[setting up: [/a, read-only]]"));
        row("place holders within an argument",
            Text::tr("Testing speed (%1 of %2)…").arg(QStringLiteral("a%2"), QStringLiteral("b%1")),
            QStringLiteral("Testing speed (a%2 of b%1)…|[b%1: a%2]"));
        row("one bridge", Text::tr("%n bridges of %1", nullptr, 1).arg(5),
            QStringLiteral("1 bridges of 5|[one of 5]"));
        row("two bridges", Text::tr("%n bridges of %1", nullptr, 2).arg(5),
            QStringLiteral("2 bridges of 5|[2 of 5]"));
        row("a word of two meanings", Text::tr("open", "of a door"),
            QStringLiteral("open|[open as of a door]"));
        row("several in one line",
            Text::joined({Text::tr("Starting Tor…"), Text(QStringLiteral("x"))}),
            QStringLiteral("Starting Tor… x|[Starting Tor…] x"));
        row("several with something between",
            Text::joined({Text(QStringLiteral("%1")), Text::tr("Starting Tor…")},
                         QStringLiteral("; ")),
            QStringLiteral("%1; Starting Tor…|%1; [Starting Tor…]"));
    }
    void isEnglishAndTheUsersLanguage()
    {
        QFETCH(QString, wanted);
        const Text text = texts().value(QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(shown(text), wanted);
        QCOMPARE(shown(sent(text)), wanted);
    }

    void wordsAreSentAsAString()
    {
        QCOMPARE(Text(QStringLiteral("Guard is down")).toJson(),
                 QJsonValue(QStringLiteral("Guard is down")));
        QVERIFY(Text::tr("Starting Tor…").toJson().isObject());
    }

    // The text as a program of another version may send it.
    void isEmptyWhereNothingIsUnderstood()
    {
        for (const QJsonValue &odd :
             {QJsonValue(), QJsonValue(7), QJsonValue(QJsonObject{{QStringLiteral("other"), 1}})})
            QVERIFY(Text::fromJson(odd).isEmpty());
        QCOMPARE(shown(Text::fromJson(QJsonObject{
                     {QStringLiteral("text"), QStringLiteral("Testing speed (%1 of %2)…")}})),
                 QStringLiteral("Testing speed (%1 of %2)…|[%2: %1]"));
    }

    void isEqualWhereTheEnglishIs()
    {
        QVERIFY(Text::tr("Starting Tor…") == Text(QStringLiteral("Starting Tor…")));
        QVERIFY(Text::tr("%1 is read-only.").arg(QStringLiteral("/a"))
                != Text::tr("%1 is read-only.").arg(QStringLiteral("/b")));
    }

private:
    static QHash<QString, Text> &texts()
    {
        static QHash<QString, Text> all;
        return all;
    }
};

VELDMARK_TEST(TextTest)
#include "TextTest.moc"
