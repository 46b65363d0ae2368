#include "system/SettingsFile.h"
#include "support/TestProgram.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace veldmark;

class SettingsFileTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void tellsSettingsFromDamage_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("intact");
        const auto row = [](const char *name, const QByteArray &content, bool intact) {
            QTest::newRow(name) << content << intact;
        };
        row("empty", "", true);
        row("ordinary", "[General]\nstrictMode=true\nexit=de\n", true);
        row("general as a section of its own", "[%General]\na=1\n[Other]\nb=2\n", true);
        row("no section", "strictMode=true", true);
        row("comments and blank lines", "; one\n\n  \na=1\n", true);
        row("number sign, which begins no comment", "# two\na=1\n", false);
        row("windows line ends", "[General]\r\na=1\r\n", true);
        row("byte order mark", "\xef\xbb\xbf[General]\na=1\n", false);
        row("spaces around the key", "  a = 1\n", true);
        row("quoted list", "a=\"x, y\", z\n", true);
        row("escaped quote", "a=\"x\\\"y\"\n", true);
        row("quote within a comment", "a=1 ; it's \" open\n", true);
        row("empty value", "a=\n", true);
        row("umlauts",
            "a=Gr\xc3\xbc\xc3\x9f"
            "e\n",
            true);
        row("control character", "a=x\x01\n", false);
        row("nul", QByteArray("a=1\n\0b=2\n", 9), false);
        row("all nuls", QByteArray(4096, '\0'), false);
        row("latin-1",
            "a=Gr\xfc\xdf"
            "e\n",
            false);
        row("binary",
            "\x7f"
            "ELF\x02\x01",
            false);
        row("no equals sign", "[General]\nstrictM", false);
        row("no key", "=true\n", false);
        row("open section", "[General\na=1\n", false);
        row("open quote", "a=\"x\nb=2\n", false);
        row("key cut off by a comment", "exit; y=de\n", false);
        row("section cut off by a comment", "[G; eral]\na=1\n", false);
        row("section with a comment", "[General] ; mine\na=1\n", true);
        row("line that goes on", "a=1\\\nb=2\n", false);
        row("backslash at the end of a value", "a=1\\\\\nb=2\n", true);
        row("equals sign behind a backslash", "a\\=1\n", false);
        row("equals sign behind that one", "a\\==1\n", true);
        row("equals sign in quotes", "\"a=1\"\n", false);
        row("quoted key", "\"a=1\"=2\n", true);
        row("section that ends early", "[a]b]\na=1\n", false);
        row("a page", "<html>\n<body></body>\n", false);
    }
    void tellsSettingsFromDamage()
    {
        QFETCH(QByteArray, content);
        QTEST(isIntactSettingsText(content), "intact");
    }

    // Text that looks valid, but would lose something in a rewrite.
    void tellsDamageThatShowsWhenItIsRead_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("intact");
        const auto row = [](const char *name, const QByteArray &content, bool intact) {
            QTest::newRow(name) << content << intact;
        };
        row("key with a group", "group\\a=1\n[one/two]\nb=2\n", true);
        row("key that begins with a separator", "\\0ther]=1\n", false);
        row("key that ends with one", "a/=1\n", false);
        row("key with an empty part", "a\\/b=1\n", false);
        row("key with a separator by its code", "%2Fa=1\n", false);
        row("section with an empty part", "[/]\na=1\n", false);
        row("no equals sign but one behind a backslash", "a\\=1\n", false);
        row("no equals sign but one in quotes", "\"a=1\"\n", false);
        row("number sign", "# two\na=1\n", false);
        row("half a surrogate pair", "a=x\\xd83d\n", false);
        row("half a surrogate pair in a list", "a=x, y\\xd83d\n", false);
        row("a whole pair", "a=x\\xd83d\\xde00\n", true);
        row("byte order mark", "\xef\xbb\xbf[General]\na=1\n", false);
    }
    void whatIsTooLongIsNotRead()
    {
        constexpr qint64 largest = 4 * 1024 * 1024;
        QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("veldmark.conf")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write("a=1\n" + QByteArray(largest - 5, ';') + '\n'), largest);
        QVERIFY(file.flush());
        QCOMPARE(settingsFileState(file.fileName()), SettingsFileState::Intact);
        QVERIFY(file.write("\n") == 1 && file.flush());
        QCOMPARE(settingsFileState(file.fileName()), SettingsFileState::Unreadable);
    }
    void tellsDamageThatShowsWhenItIsRead()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, intact);
        QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("veldmark.conf")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        file.close();
        // The second time QSettings has the content of the first read in its cache.
        for (int time = 0; time < 2; ++time)
            QCOMPARE(settingsFileState(file.fileName()),
                     intact ? SettingsFileState::Intact : SettingsFileState::Damaged);
    }

    // As when the program is started without standard input: the new file gets descriptor 0.
    void isWrittenWithoutAStandardInput()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("veldmark.conf"));
        const QString key = QStringLiteral("a");
        const int input = ::dup(STDIN_FILENO);
        ::close(STDIN_FILENO);
        const bool isWritten = rewriteSettingsFile(path, {key}, {{key, 1}});
        if (input >= 0) {
            ::dup2(input, STDIN_FILENO);
            ::close(input);
        }
        QVERIFY(isWritten);
        QCOMPARE(readSettingsFile(path).value(key).toString(), QStringLiteral("1"));
    }

    // QSettings takes two files of the same size and time for the same.
    void aRewriteAlwaysMovesTheTimeOfChangeForward()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("veldmark.conf"));
        const QString key = QStringLiteral("a");
        QVERIFY(rewriteSettingsFile(path, {key}, {{key, 1}}));
        const QDateTime later = QDateTime::currentDateTime().addSecs(3600);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(later, QFileDevice::FileModificationTime));
        file.close();
        QVERIFY(rewriteSettingsFile(path, {key}, {{key, 2}}));
        QVERIFY(QFileInfo(path).lastModified() > later);
        QCOMPARE(readSettingsFile(path).value(key).toString(), QStringLiteral("2"));
    }

    void movesAsideUnderAFreeName()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("veldmark.conf"));
        for (const QString &suffix : {QStringLiteral(".broken"), QStringLiteral(".broken-1"),
                                      QStringLiteral(".broken-2")}) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(suffix.toUtf8());
            file.close();
            QCOMPARE(setSettingsFileAside(path).value(), path + suffix);
            QVERIFY(!QFile::exists(path));
        }
        QFile first(path + QStringLiteral(".broken"));
        QVERIFY(first.open(QIODevice::ReadOnly));
        QCOMPARE(first.readAll(), QByteArray(".broken")); // later ones did not replace it
        QVERIFY(!setSettingsFileAside(path));             // nothing there
    }
};

VELDMARK_TEST(SettingsFileTest)
#include "SettingsFileTest.moc"
