#include "system/SessionMark.h"

#include "platform/PlatformProfile.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

using namespace veldmark;

class SessionMarkTest : public QObject {
    Q_OBJECT

    // As the helper does it: a new file takes the place of the old one.
    static void begin(const PlatformProfile &profile)
    {
        const QString made = profile.sessionMarker + QStringLiteral(".new");
        QVERIFY(QDir().mkpath(QFileInfo(made).path()));
        QFile file(made);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("strict\n") == 7);
        file.close();
        QCOMPARE(::rename(QFile::encodeName(made).constData(),
                          QFile::encodeName(profile.sessionMarker).constData()),
                 0);
    }

private Q_SLOTS:
    void isThereWithASessionAlone()
    {
        const QTemporaryDir folder;
        const PlatformProfile profile = PlatformProfile::linux(Places::below(folder.path()));
        QVERIFY(!SessionMark::present(profile));
        begin(profile);
        QVERIFY(SessionMark::present(profile));
        QVERIFY(QFile::remove(profile.sessionMarker));
        QVERIFY(!SessionMark::present(profile));
    }

    void tellsTwoSessionsOfOneKindApart()
    {
        const QTemporaryDir folder;
        const PlatformProfile profile = PlatformProfile::linux(Places::below(folder.path()));
        begin(profile);
        const auto first = SessionMark::present(profile);
        QVERIFY(first == SessionMark::present(profile));
        begin(profile);
        QVERIFY(SessionMark::present(profile) && SessionMark::present(profile) != first);
    }
};

VELDMARK_TEST(SessionMarkTest)
#include "SessionMarkTest.moc"
