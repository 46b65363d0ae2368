#include "system/HelperSentences.h"
#include "support/TestProgram.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

class HelperSentencesTest : public QObject {
    Q_OBJECT

    static QJsonObject sentence(const QString &source, const QJsonArray &arguments = {})
    {
        QJsonObject object{{u"text"_s, source}};
        if (!arguments.isEmpty())
            object.insert(u"with"_s, arguments);
        return object;
    }

private Q_SLOTS:
    void knowsWhatTheHelperSays_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QJsonValue>("text");
        const auto row = [](const char *name, const QString &line, const QJsonValue &text) {
            QTest::newRow(name) << line << text;
        };
        row("a sentence", u"The helper must run as root."_s,
            sentence(u"The helper must run as root."_s));
        row("a word in it", u"The file /etc/x cannot be written."_s,
            sentence(u"The file %1 cannot be written."_s, {u"/etc/x"_s}));
        row("two",
            u"The port 9050, which Tor needs, is held by tor (process 7). End that program, then connect again."_s,
            sentence(
                u"The port %1, which Tor needs, is held by %2. End that program, then connect again."_s,
                {u"9050"_s, u"tor (process 7)"_s}));
        row("words of the helper's own in it", u"Tor did not start: it ended without a message."_s,
            sentence(u"Tor did not start: %1"_s, {sentence(u"it ended without a message."_s)}));
        row("Tor's words in it",
            u"Tor did not start: Could not bind to 127.0.0.1:9050: Address already in use."_s,
            sentence(u"Tor did not start: %1"_s,
                     {u"Could not bind to 127.0.0.1:9050: Address already in use."_s}));
        row("what stays behind it",
            u"The record of the former network settings cannot be written. The network stays blocked until you disconnect."_s,
            QJsonObject{
                {u"between"_s, u" "_s},
                {u"parts"_s,
                 QJsonArray{
                     sentence(u"The record of the former network settings cannot be written."_s),
                     sentence(u"The network stays blocked until you disconnect."_s)}}});
        row("the form with more words",
            u"The folder /x is not safe: only root may own or write it and those above it."_s,
            sentence(
                u"The folder %1 is not safe: only root may own or write it and those above it."_s,
                {u"/x"_s}));
        row("a place holder in a name", u"The file /%2 cannot be written."_s,
            sentence(u"The file %1 cannot be written."_s, {u"/%2"_s}));
        row("a line break in it", u"The file /etc/x\ny cannot be written."_s,
            u"The file /etc/x\ny cannot be written."_s);
        row("a shell's words", u"/usr/share/x.sh: line 7: oops"_s,
            u"/usr/share/x.sh: line 7: oops"_s);
        row("nothing", QString(), QString());
    }
    void knowsWhatTheHelperSays()
    {
        QFETCH(QString, line);
        QFETCH(QJsonValue, text);
        const Text known = HelperSentences::recognised(line);
        QCOMPARE(known.toJson(), text);
        QCOMPARE(known.english(), line);
    }
};

VELDMARK_TEST(HelperSentencesTest)
#include "HelperSentencesTest.moc"
