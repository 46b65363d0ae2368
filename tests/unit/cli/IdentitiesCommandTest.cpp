#include "cli/IdentitiesCommand.h"

#include "platform/PlatformProfile.h"
#include "support/TestProgram.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace veldmark;

class IdentitiesCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsWhatWasWrittenWhole()
    {
        const auto known = Identities::parse(
            "identities 7\nstanding\n1000 127.65.0.1 firefox\n1001 127.65.0.2 as:bank\\x2d\nend 7\n");
        QVERIFY(known && known->standing);
        QCOMPARE(known->all.size(), 2U);
        QCOMPARE(known->all[1].user, 1001U);
        QCOMPARE(known->all[1].address, QStringLiteral("127.65.0.2"));
        QCOMPARE(known->all[1].application, QStringLiteral("as:bank\\x2d"));
        const auto lost = Identities::parse("identities 7\nlost\nend 7\n");
        QVERIFY(lost && !lost->standing && lost->all.empty());
    }

    void refusesTheRest_data()
    {
        QTest::addColumn<QByteArray>("text");
        for (const char *text :
             {"", "\n", "identities 1\nstanding\n", "identities 1\nstanding\nend 2\n",
              "identities 1\nother\nend 1\n", "identities 1\nstanding\nend 1",
              "identities 1\nstanding\nx 127.0.0.1 a\nend 1\n",
              "identities 1\nstanding\n1 10.0.0.1 a\nend 1\n",
              "identities 1\nstanding\n1 127.0.0.1 a b\nend 1\n",
              "identities 1\nstanding\n1 127.0.0.1 a\x1b[2J\nend 1\n"})
            QTest::newRow(text) << QByteArray(text);
    }

    void refusesTheRest()
    {
        QFETCH(QByteArray, text);
        QVERIFY(!Identities::parse(text));
    }

    void isNotBelievedOfAProgramThatHasGone()
    {
        const QTemporaryDir folder;
        PlatformProfile profile;
        profile.identitiesNote = folder.filePath(QStringLiteral("note"));
        profile.identitiesSocket = folder.filePath(QStringLiteral("socket"));
        QFile file(profile.identitiesNote);
        QVERIFY(file.open(QIODevice::WriteOnly)
                && file.write("identities 1\nstanding\nend 1\n") > 0);
        file.close();
        QVERIFY(!Identities::read(profile));
        const int serving = socket(AF_UNIX, SOCK_DGRAM, 0);
        sockaddr_un place{};
        place.sun_family = AF_UNIX;
        const QByteArray path = QFile::encodeName(profile.identitiesSocket);
        std::memcpy(place.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
        QCOMPARE(bind(serving, reinterpret_cast<const sockaddr *>(&place), sizeof place), 0);
        QVERIFY(Identities::read(profile));
        close(serving);
        QVERIFY(!Identities::read(profile));
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
