#include "system/IdentityProgram.h"

#include "platform/PlatformProfile.h"
#include "support/ListeningSocket.h"
#include "support/TestProgram.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace veldmark;

class IdentityProgramTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void saysWhetherApplicationsAreSeparated()
    {
        const QTemporaryDir folder;
        PlatformProfile profile;
        QVERIFY(!IdentityProgram::separates(profile)); // a system that cannot
        profile.identitiesNote = folder.filePath(QStringLiteral("note"));
        profile.identitiesSocket = folder.filePath(QStringLiteral("socket"));
        const auto noted = [&profile](const QByteArray &text) {
            QFile note(profile.identitiesNote);
            if (!note.open(QIODevice::WriteOnly) || note.write(text) != text.size())
                qFatal("the note cannot be written");
            note.close();
            return IdentityProgram::separates(profile);
        };
        QCOMPARE(IdentityProgram::separates(profile), std::optional(false));
        QCOMPARE(noted("identities 7\nstanding\nend 7\n"), std::optional(false)); // it has gone
        {
            const ListeningSocket program(profile.identitiesSocket);
            QCOMPARE(noted("identities 7\nstanding\nend 7\n"), std::optional(true));
            QCOMPARE(noted("identities 7\nstanding\n1000 127.65.0.1 " + QByteArray(99, 'a') + "\n"),
                     std::optional(true)); // the rest is still being written
            QCOMPARE(noted("identities 8\nlost\nend 8\n"), std::optional(false));
            for (const char *begun :
                 {"", "identities 9", "identities 9\nstan", "nonsense\nstanding\n"})
                QVERIFY2(!noted(begun), begun);
            QVERIFY(QFile::remove(profile.identitiesNote));
            QCOMPARE(IdentityProgram::separates(profile), std::optional(false));
        }
        QCOMPARE(noted("identities 7\nstanding\nend 7\n"), std::optional(false));
    }
};

VELDMARK_TEST(IdentityProgramTest)
#include "IdentityProgramTest.moc"
