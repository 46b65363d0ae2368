#include "system/SignedBundle.h"

#include "platform/PlatformProfile.h"
#include "support/TestProgram.h"
#include "system/ProgramApproval.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

class SignedBundleTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void isHandedOverWhereATransportOfItsIsToBeApproved()
    {
        const QTemporaryDir folder;
        const PlatformProfile profile = PlatformProfile::linux(Places::below(folder.path()));
        const QString archive = SignedBundle::archiveBelow(profile.bundleDirectory);
        const QString lyrebird = profile.bundleDirectory + u"/tor/pluggable_transports/lyrebird"_s;
        for (const QString &path :
             {archive, SignedBundle::signatureOf(archive), SignedBundle::keyOf(archive), lyrebird})
            write(path);
        const QString gpgv = folder.filePath(u"usr/bin/gpgv"_s);
        write(gpgv);
        QVERIFY(QFile::setPermissions(gpgv, QFile::ReadOwner | QFile::ExeOwner));

        const ProgramApproval ours{QFileInfo(lyrebird).canonicalFilePath(), u"lyrebird"_s,
                                   u"abcd"_s};
        const ProgramApproval tor{profile.bundleDirectory + u"/tor/pluggable_transports/tor"_s,
                                  u"tor"_s, u"abcd"_s};
        const ProgramApproval elsewhere{folder.filePath(u"lyrebird"_s), u"lyrebird"_s, u"abcd"_s};
        const QStringList words = {u"--bundle"_s, archive};
        QCOMPARE(SignedBundle::words(profile, {ours}), words);
        QCOMPARE(SignedBundle::words(profile, {elsewhere, ours}), words);
        QCOMPARE(SignedBundle::words(profile, {elsewhere, tor}), QStringList());
        QCOMPARE(SignedBundle::words(profile, {}), QStringList());
        QVERIFY(SignedBundle::brings(profile, ours) && !SignedBundle::brings(profile, elsewhere)
                && !SignedBundle::brings(profile, tor));

        for (const QString &path :
             {archive, SignedBundle::signatureOf(archive), SignedBundle::keyOf(archive), gpgv}) {
            QVERIFY(QFile::rename(path, path + u".away"_s));
            QCOMPARE(SignedBundle::words(profile, {ours}), QStringList());
            QVERIFY(QFile::rename(path + u".away"_s, path));
        }
        QCOMPARE(SignedBundle::words(profile, {ours}), words);
    }

private:
    static void write(const QString &path)
    {
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("x") == 1);
    }
};

VELDMARK_TEST(SignedBundleTest)
#include "SignedBundleTest.moc"
