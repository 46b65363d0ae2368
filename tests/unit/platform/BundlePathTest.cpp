#include "platform/BundlePath.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace veldmark;

class BundlePathTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void spellingsOfOneBundleAreEqual_data()
    {
        QTest::addColumn<QString>("one");
        QTest::addColumn<QString>("other");
        QTest::addColumn<bool>("same");
        const auto row = [](const char *name, const QString &one, const QString &other, bool same) {
            QTest::newRow(name) << one << other << same;
        };
        row("a slash at the end", QStringLiteral("/Applications/A.app/"),
            QStringLiteral("/Applications/A.app"), true);
        row("a detour", QStringLiteral("/Applications/x/../A.app"),
            QStringLiteral("/Applications/A.app"), true);
        // As the file system stores it, and as a person types it.
        row("a mark of its own", QStringLiteral(u"/Applications/Bu\u0308ro.app"),
            QStringLiteral(u"/Applications/B\u00fcro.app"), true);
        row("a linked folder", QStringLiteral("/private/var/folders/A.app"),
            QStringLiteral("/var/folders/A.app"), true);
        row("another folder of that name", QStringLiteral("/private/home/A.app"),
            QStringLiteral("/home/A.app"), false);
        row("another name", QStringLiteral("/Applications/A.app"),
            QStringLiteral("/Applications/B.app"), false);
        row("without the mark", QStringLiteral("/Applications/Buro.app"),
            QStringLiteral(u"/Applications/B\u00fcro.app"), false);
    }

    void spellingsOfOneBundleAreEqual()
    {
        QFETCH(QString, one);
        QFETCH(QString, other);
        QFETCH(bool, same);
        QCOMPARE(comparableBundle(one) == comparableBundle(other), same);
    }
};

VELDMARK_TEST(BundlePathTest)
#include "BundlePathTest.moc"
