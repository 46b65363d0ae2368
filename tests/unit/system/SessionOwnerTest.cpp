#include "system/SessionOwner.h"

#include "support/OtherSession.h"
#include "support/TestProgram.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

class SessionOwnerTest : public QObject {
    Q_OBJECT
private:
    struct Place {
        QTemporaryDir folder;
        PlatformProfile profile = PlatformProfile::linux(Places::below(folder.path()));
        std::optional<SessionOwner> owner() const
        {
            return SessionOwner::ofAnotherProcess(profile);
        }
    };

private Q_SLOTS:
    void initTestCase() // also where sudo runs it
    {
        qunsetenv("SUDO_UID");
        qunsetenv("PKEXEC_UID");
    }

    void anotherProcessOwnsItWhileItRuns()
    {
        Place place;
        OtherSession other(place.profile);
        QVERIFY(place.owner() == SessionOwner({geteuid(), other.process()}));
        QVERIFY(place.owner()->isOwnUser());
        other.end();
        QVERIFY(!place.owner());
    }

    void anotherUserIsToldByName()
    {
        Place place;
        OtherSession other(place.profile, 1); // uid 1 is "daemon" on every system
        QVERIFY(!place.owner()->isOwnUser());
        QCOMPARE(place.owner()->userName(), u"daemon"_s);
        QCOMPARE((SessionOwner{54321, 1}).userName(), u"54321"_s);
    }

    void thisProcessIsNoOther()
    {
        Place place;
        OtherSession other(place.profile);
        other.note(::getpid(), OtherSession::startOf(::getpid()), OtherSession::bootID());
        QVERIFY(!place.owner());
    }

    void aReusedNumberIsNotTheOwner()
    {
        Place place;
        OtherSession other(place.profile);
        const QByteArray start = OtherSession::startOf(other.process());
        const QByteArray boot = OtherSession::bootID();
        for (const auto &[wrongStart, wrongBoot] :
             {std::pair(start + '1', boot), std::pair(QByteArray(), boot),
              std::pair(start, QByteArray("other")), std::pair(start, QByteArray())}) {
            other.note(other.process(), wrongStart, wrongBoot);
            QVERIFY(!place.owner());
        }
        other.note(other.process(), start, boot);
        QVERIFY(place.owner());
    }

    void aNoteThatTellsNothingNamesNobody_data()
    {
        QTest::addColumn<QByteArray>("note");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("the user alone") << QByteArray("uid 0\nend\n");
        QTest::newRow("no numbers") << QByteArray("uid x\npid y\nstart 1\nboot z\nend\n");
        QTest::newRow("every process")
            << "uid 0\npid -1\nstart 1\nboot " + OtherSession::bootID() + "\nend\n";
        QTest::newRow("this group")
            << "uid 0\npid 0\nstart 1\nboot " + OtherSession::bootID() + "\nend\n";
        QTest::newRow("no text") << QByteArray("\0\xff\0", 3);
        QTest::newRow("endless") << QByteArray(1024 * 1024, 'u');
    }

    void aNoteThatTellsNothingNamesNobody()
    {
        QFETCH(QByteArray, note);
        Place place;
        OtherSession other(place.profile);
        QVERIFY(place.owner());
        QFile file(place.profile.sessionOwner);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(note) == note.size() && file.flush());
        QVERIFY(!place.owner());
    }

    void aNoteIsReadToItsLimit()
    {
        Place place;
        OtherSession other(place.profile);
        QFile file(place.profile.sessionOwner);
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QByteArray note = file.readAll().chopped(5); // without "\nend\n"
        for (const qsizetype size : {1024, 1025}) {
            QVERIFY(file.resize(0) && file.seek(0));
            file.write(QByteArray(size - note.size() - 1, '#') + '\n' + note);
            QVERIFY(file.flush());
            QCOMPARE(place.owner().has_value(), size == 1024);
        }
    }

    void withoutASessionOrANoteThereIsNoOwner()
    {
        Place place;
        OtherSession other(place.profile);
        QVERIFY(
            QFile::rename(place.profile.sessionMarker, place.profile.sessionMarker + u"-away"_s));
        QVERIFY(!place.owner());
        QVERIFY(
            QFile::rename(place.profile.sessionMarker + u"-away"_s, place.profile.sessionMarker));
        QVERIFY(place.owner());
        QVERIFY(QFile::remove(place.profile.sessionOwner));
        QVERIFY(!place.owner());
        QVERIFY(PlatformProfile::macos(place.profile.places).sessionOwner.isEmpty());
    }

    void rootByWayOfSudoIsTheUserWhoAsked()
    {
        qputenv("SUDO_UID", "4242");
        QCOMPARE(SessionOwner::callerOfHelper(), geteuid() == 0 ? uid_t(4242) : geteuid());
        qputenv("SUDO_UID", "nobody");
        qputenv("PKEXEC_UID", "4243");
        QCOMPARE(SessionOwner::callerOfHelper(), geteuid() == 0 ? uid_t(4243) : geteuid());
        qunsetenv("SUDO_UID");
        qunsetenv("PKEXEC_UID");
        QCOMPARE(SessionOwner::callerOfHelper(), geteuid());
    }
};

VELDMARK_TEST(SessionOwnerTest)
#include "SessionOwnerTest.moc"
