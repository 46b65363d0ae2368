#include "cli/ApplicationsCommand.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {

const std::vector<InstalledApplication> sample = {
    {u"/usr/share/applications/alpha.desktop"_s, u"Alpha"_s, {}},
    {u"/usr/share/applications/org.example.Mail.desktop"_s, u"Mail"_s, {}},
    {u"/home/u/.local/share/applications/mail.desktop"_s, u"mail"_s, {}},
};

QString nameOf(const QString &path)
{
    return u"name of "_s + path;
}

} // namespace

class ApplicationsCommandTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void marksWhatTheUserHasChosen()
    {
        const QJsonArray findings = applicationFindings(
            sample, {sample[1].path, u"/gone.desktop"_s, u"/gone.desktop"_s}, nameOf);
        QCOMPARE(
            QJsonDocument(findings).toJson(QJsonDocument::Compact),
            QByteArray(
                R"([{"bypassed":false,"installed":true,"name":"Alpha","path":"/usr/share/applications/alpha.desktop"},)"
                R"({"bypassed":true,"installed":true,"name":"Mail","path":"/usr/share/applications/org.example.Mail.desktop"},)"
                R"({"bypassed":false,"installed":true,"name":"mail","path":"/home/u/.local/share/applications/mail.desktop"},)"
                R"({"bypassed":true,"installed":false,"name":"name of /gone.desktop","path":"/gone.desktop"}])"));
        QCOMPARE(Report::applications(findings),
                 u"  Alpha                  /usr/share/applications/alpha.desktop\n"
                 "* Mail                   /usr/share/applications/org.example.Mail.desktop\n"
                 "  mail                   /home/u/.local/share/applications/mail.desktop\n"
                 "* name of /gone.desktop  /gone.desktop  (not in the menu)"_s);
    }

    void saysWhenThereAreNone()
    {
        QCOMPARE(Report::applications(applicationFindings({}, {}, nameOf)),
                 u"No applications are installed."_s);
    }

    void aNameStaysOneLine()
    {
        const QString report = Report::applications(applicationFindings(
            {{u"/a.desktop"_s, u"a\nb\x1b[31m"_s + QString(1000, u'x'), {}}}, {}, nameOf));
        QVERIFY(report.startsWith(u"  a b?[31mxxx"_s));
        QVERIFY(!report.contains(u'\n') && report.size() < 100);
    }

    void findsWhatIsMeant_data()
    {
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<QString>("path");
        QTest::newRow("name") << u"Alpha"_s << sample[0].path;
        QTest::newRow("name in other letters") << u"aLPHA"_s << sample[0].path;
        QTest::newRow("file name") << u"org.example.Mail.desktop"_s << sample[1].path;
        QTest::newRow("without the suffix") << u"org.example.Mail"_s << sample[1].path;
        QTest::newRow("path of a program") << u"/bin/true"_s << u"/bin/true"_s;
    }

    void findsWhatIsMeant()
    {
        QFETCH(QString, wanted);
        const auto path = applicationPath(wanted, sample);
        QVERIFY2(path, qPrintable(path ? QString() : path.error().english()));
        QTEST(*path, "path");
    }

    void aPathOfThisFolderBecomesAbsolute()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath(u"a.desktop"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QString former = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder.path()));
        const auto path = applicationPath(u"./a.desktop"_s, {});
        const auto bare = applicationPath(u"a.desktop"_s, {}); // without a slash it is a name
        QVERIFY(QDir::setCurrent(former));
        QCOMPARE(path.value_or(QString()),
                 QFileInfo(folder.path()).canonicalFilePath() + u"/a.desktop"_s);
        QVERIFY(!bare);
    }

    void refusesInOneLine_data()
    {
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<QString>("part");
        QTest::newRow("unknown") << u"nothing"_s << u"There is no application \"nothing\""_s;
        QTest::newRow("empty") << QString() << u"There is no application \"\""_s;
        QTest::newRow("two of them")
            << u"Mail"_s
            << u"\"Mail\" may be any of: /usr/share/applications/org.example.Mail.desktop, "
               "/home/u/.local/share/applications/mail.desktop."_s;
        QTest::newRow("no file") << u"/nowhere/a.desktop"_s
                                 << u"There is no file \"/nowhere/a.desktop\""_s;
        QTest::newRow("a folder") << u"/usr"_s << u"There is no file"_s;
        QTest::newRow("line breaks") << u"a\nb\x1b"_s << u"\"a b?\""_s;
        QTest::newRow("endless") << QString(100'000, u'x') << u"There is no application"_s;
    }

    void refusesInOneLine()
    {
        QFETCH(QString, wanted);
        QFETCH(QString, part);
        const auto path = applicationPath(wanted, sample);
        QVERIFY(!path);
        QVERIFY2(path.error().english().contains(part), qPrintable(path.error().english()));
        QVERIFY(!path.error().english().contains(u'\n') && path.error().english().size() < 300);
    }
};

VELDMARK_TEST(ApplicationsCommandTest)
#include "ApplicationsCommandTest.moc"
