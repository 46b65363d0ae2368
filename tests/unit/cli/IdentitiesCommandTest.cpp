#include "cli/IdentitiesCommand.h"

#include "platform/PlatformProfile.h"
#include "support/TestProgram.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace veldmark;

class IdentitiesCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aProgramIsParsedWithItsOwnWords()
    {
        const auto asked = parseArguments({QStringLiteral("run-as"), QStringLiteral("bank"),
                                           QStringLiteral("--"), QStringLiteral("curl"),
                                           QStringLiteral("--json"), QStringLiteral("--")});
        QVERIFY(asked && asked->key == QStringLiteral("bank") && !asked->json);
        QCOMPARE(
            asked->program,
            (QStringList{QStringLiteral("curl"), QStringLiteral("--json"), QStringLiteral("--")}));
        for (const QStringList &words : {QStringList{},
                                         {QStringLiteral("bank")},
                                         {QStringLiteral("bank"), QStringLiteral("--")}})
            QVERIFY(!parseArguments(QStringList{QStringLiteral("run-as")} + words));
    }

    void theProgramStartsOnceItsIdentityIsKnown()
    {
        const QTemporaryDir folder;
        PlatformProfile profile;
        profile.identitiesNote = folder.filePath(QStringLiteral("note"));
        QStringList words = runAsWords(
            QStringLiteral("my.bank"), QStringLiteral("12"), 1000, profile,
            {QStringLiteral("/bin/echo"), QStringLiteral("started"), QStringLiteral("a  b")});
        QCOMPARE(
            words.mid(0, 7).join(u' '),
            QStringLiteral(
                "systemd-run --user --scope --quiet --collect --slice=app.slice --unit=app-veldmark-my.bank-12.scope"));
        words = words.mid(words.indexOf(QStringLiteral("--")) + 1);
        const auto write = [&profile](const char *line) {
            QFile file(profile.identitiesNote);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(line);
        };
        write(
            "1000 127.65.0.1 as:my-bank\n1001 127.65.0.1 as:my.bank\n1000 127.65.0.1 as:my.bank2\n");
        QProcess process;
        process.start(words.first(), words.mid(1));
        QVERIFY(!process.waitForFinished(400));
        write("1000 127.65.0.1 as:my.bank\n");
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.readAllStandardOutput(), QByteArray("started a  b\n"));
    }
};

VELDMARK_TEST(IdentitiesCommandTest)
#include "IdentitiesCommandTest.moc"
