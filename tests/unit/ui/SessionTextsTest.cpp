#include "ui/SessionTexts.h"
#include "support/TestProgram.h"

#include <QTest>
#include <QTranslator>

using namespace veldmark;

namespace {

// A language that knows a few texts, which it puts between brackets.
class Brackets final : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        static const QStringList known{
            QStringLiteral("Starting Tor…"), QStringLiteral("Testing %1 bridges…"), QStringLiteral("Testing speed (%1 of %2)…"),
            QStringLiteral("Couldn't open %1 without Tor: %2"),
            QStringLiteral("Couldn't change the login-item setting: %1"), QStringLiteral("Couldn't write %1: %2"),
            QStringLiteral("Tor didn't finish connecting within 5 minutes."),
            QStringLiteral("%1 Your network is still pointed at Tor. Click Restore Network to undo.")};
        const QString text = QString::fromUtf8(source);
        return known.contains(text) ? u'[' + text + u']' : QString();
    }
};

} // namespace

class SessionTextsTest : public QObject {
    Q_OBJECT

    Brackets brackets;

private Q_SLOTS:
    void initTestCase() { QCoreApplication::installTranslator(&brackets); }

    void translatesWhatItKnows_data()
    {
        QTest::addColumn<QString>("said");
        QTest::addColumn<QString>("shown");
        QTest::newRow("a sentence") << QStringLiteral("Starting Tor…") << QStringLiteral("[Starting Tor…]");
        QTest::newRow("a number") << QStringLiteral("Testing 7 bridges…") << QStringLiteral("[Testing 7 bridges…]");
        QTest::newRow("two numbers") << QStringLiteral("Testing speed (2 of 3)…") << QStringLiteral("[Testing speed (2 of 3)…]");
        QTest::newRow("somebody else's words") << QStringLiteral("Guard is down") << QStringLiteral("Guard is down");
        QTest::newRow("nothing") << QString() << QString();
        QTest::newRow("places within what is filled in")
            << QStringLiteral("Couldn't open a%2 without Tor: b%1") << QStringLiteral("[Couldn't open a%2 without Tor: b%1]");
        QTest::newRow("a sentence within a sentence")
            << QStringLiteral("Tor didn't finish connecting within 5 minutes. Your network is still pointed at Tor. "
                              "Click Restore Network to undo.")
            << QStringLiteral("[[Tor didn't finish connecting within 5 minutes.] Your network is still pointed at Tor. "
                              "Click Restore Network to undo.]");
        QTest::newRow("a reason behind a colon")
            << QStringLiteral("Couldn't change the login-item setting: Couldn't write /a: b: No.")
            << QStringLiteral("[Couldn't change the login-item setting: [Couldn't write /a: b: No.]]");
    }
    void translatesWhatItKnows()
    {
        QFETCH(QString, said);
        QFETCH(QString, shown);
        QCOMPARE(SessionTexts::translated(said), shown);
    }
};

VELDMARK_TEST(SessionTextsTest)
#include "SessionTextsTest.moc"
