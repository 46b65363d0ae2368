#include "cli/IdentitiesCommand.h"

#include "platform/PlatformProfile.h"
#include "support/TestProgram.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace veldmark;

class IdentitiesCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anApplicationHasItsExitsAndSites()
    {
        const QJsonArray circuits = QJsonDocument::fromJson(R"([
            {"purpose":"CONFLUX","sites":["a.example","b.example","c.example"],
             "askedBy":{"a.example":["mail"],"b.example":["web","mail"]},
             "hops":[{"ip":"192.0.2.1","country":"us"},{"ip":"192.0.2.7","country":"de"}]},
            {"purpose":"CONFLUX","sites":["a.example","d.example"],
             "askedBy":{"a.example":["mail"],"d.example":["mail"]},
             "hops":[{"ip":"192.0.2.2","country":"us"},{"ip":"192.0.2.7","country":"de"}]},
            {"purpose":"HS_CLIENT_REND","sites":["x.onion"],"askedBy":{"x.onion":["mail"]},
             "hops":[{"ip":"192.0.2.9","country":"fr"}]},
            {"purpose":"GENERAL","sites":["e.example"],"askedBy":{"e.example":["mail"]},
             "hops":[{"ip":null,"country":null}]},
            {"purpose":"GENERAL","sites":["f.example"],"hops":[{"ip":"192.0.2.8","country":"se"}]},
            {"purpose":"GENERAL","sites":["g.example"],"askedBy":{"g.example":["mai"]},"hops":[]}])")
                                        .array();
        const QJsonArray mail = exitsOf(QStringLiteral("mail"), circuits);
        QCOMPARE(
            QJsonDocument(mail).toJson(QJsonDocument::Compact),
            QByteArray(
                "[{\"country\":\"de\",\"ip\":\"192.0.2.7\",\"sites\":[\"a.example\",\"b.example\",\"d.example\"]},"
                "{\"country\":null,\"ip\":null,\"sites\":[\"x.onion\",\"e.example\"]}]"));
        QCOMPARE(exitLine(mail[0].toObject()),
                 QStringLiteral("DE 192.0.2.7: a.example, b.example, d.example"));
        QCOMPARE(exitLine(mail[1].toObject()), QStringLiteral("x.onion, e.example"));
        const QJsonArray web = exitsOf(QStringLiteral("web"), circuits);
        QCOMPARE(web.size(), 1);
        QCOMPARE(exitLine(web[0].toObject()), QStringLiteral("DE 192.0.2.7: b.example"));
        QVERIFY(exitsOf(QStringLiteral("other"), circuits).isEmpty());
        QVERIFY(exitsOf(QStringLiteral("mail"), {}).isEmpty());
    }

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
