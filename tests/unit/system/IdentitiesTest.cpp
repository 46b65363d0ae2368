#include "system/Identities.h"

#include "platform/PlatformProfile.h"
#include "support/TestProgram.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace veldmark;

class IdentitiesTest : public QObject {
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

    void areOfTheirUsersAndAllOfThemOfRoots()
    {
        const uid_t user = geteuid();
        if (user == 0)
            QCOMPARE(seteuid(12345), 0);
        const uid_t other = geteuid();
        const bool own = Identities::Identity{other, {}, {}}.isMine();
        const bool anothers = Identities::Identity{other + 1, {}, {}}.isMine();
        QCOMPARE(seteuid(user), 0);
        QVERIFY(own && !anothers);
        QCOMPARE((Identities::Identity{other + 1, {}, {}}.isMine()), user == 0);
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
};

VELDMARK_TEST(IdentitiesTest)
#include "IdentitiesTest.moc"
