#include "bridges/BundleFolder.h"

#include "ProgramTree.h"
#include "support/TestProgram.h"

#include <QDirIterator>

#include <sys/stat.h>
#include <unistd.h>
#ifdef Q_OS_LINUX
#include <sys/fsuid.h>
#endif

using namespace veldmark;

namespace {

// What root's test does to these files meanwhile it does with nobody's rights: root needs none.
class NobodysRights {
public:
    explicit NobodysRights(const QString &folder)
    {
#ifdef Q_OS_LINUX
        if (::geteuid() != 0)
            return;
        QStringList paths{folder};
        QDirIterator below(folder,
                           QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                           QDirIterator::Subdirectories);
        while (below.hasNext())
            paths << below.next();
        for (const QString &path : paths)
            if (::lchown(QFile::encodeName(path).constData(), nobody, nobody) != 0)
                qFatal("cannot give %s away", qPrintable(path));
        ::setfsuid(nobody);
#else
        Q_UNUSED(folder)
#endif
    }
    ~NobodysRights()
    {
#ifdef Q_OS_LINUX
        ::setfsuid(::geteuid());
#endif
    }
    NobodysRights(const NobodysRights &) = delete;
    NobodysRights &operator=(const NobodysRights &) = delete;

private:
    static constexpr uid_t nobody = 65534;
};

bool noExchange(const QString &, const QString &)
{
    return false;
}

} // namespace

class BundleFolderTest : public QObject {
    Q_OBJECT

    static std::shared_ptr<BundleFolder> claim(
        const ProgramTree &tree, BundleFolder::Exchange exchange = &BundleFolder::exchange)
    {
        auto claimed = BundleFolder::claim(tree.path(QStringLiteral("data/Bundle")),
                                           std::move(exchange));
        return claimed ? *claimed : nullptr;
    }

    static QStringList everything(const ProgramTree &tree)
    {
        return QDir(tree.path(QStringLiteral("data")))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

private Q_SLOTS:
    void aNewBundleTakesThePlaceOfTheOld_data()
    {
        QTest::addColumn<bool>("inOneStep");
        QTest::newRow("in one step") << true;
        QTest::newRow("where the file system cannot") << false;
    }

    void aNewBundleTakesThePlaceOfTheOld()
    {
        QFETCH(bool, inOneStep);
        const ProgramTree tree;
        const auto folder = inOneStep ? claim(tree) : claim(tree, &noExchange);
        for (const QString &version : {QStringLiteral("1.0"), QStringLiteral("2.0")}) {
            const auto fresh = folder->fresh();
            QVERIFY(fresh);
            tree.file(*fresh + QStringLiteral("/content"), version.toUtf8());
            QVERIFY(folder->publish(version, version == u"2.0"));
            QCOMPARE(tree.content(QStringLiteral("data/Bundle/content")), version.toUtf8());
        }
        const BundleRecord record = BundleRecord::read(tree.path(QStringLiteral("data/Bundle")));
        QCOMPARE(record.version, std::optional(QStringLiteral("2.0")));
        QCOMPARE(record.verification, std::optional(QStringLiteral("signature")));
        QCOMPARE(everything(tree),
                 QStringList({QStringLiteral(".Bundle.lock"), QStringLiteral("Bundle")}));
    }

    void theRecordIsNeverWrittenThroughALink()
    {
        const ProgramTree tree;
        const QString other = tree.file(QStringLiteral("other"), "mine");
        const auto folder = claim(tree);
        const auto fresh = folder->fresh();
        QVERIFY(QFile::link(other, *fresh + QStringLiteral("/VERSION")));
        QVERIFY(QDir().mkpath(*fresh + QStringLiteral("/VERIFIED/inner")));
        QVERIFY(folder->publish(QStringLiteral("1.0"), false));
        QCOMPARE(tree.content(other), QByteArray("mine"));
        QCOMPARE(tree.content(QStringLiteral("data/Bundle/VERSION")).trimmed(), QByteArray("1.0"));
        QCOMPARE(tree.content(QStringLiteral("data/Bundle/VERIFIED")).trimmed(),
                 QByteArray("https"));
    }

    void onlyOneHoldsTheRight()
    {
        const ProgramTree tree;
        auto first = claim(tree);
        QVERIFY(first);
        const auto second = BundleFolder::claim(tree.path(QStringLiteral("data/Bundle")));
        QVERIFY(!second);
        QCOMPARE(second.error(), QStringLiteral("Another download is under way."));
        first.reset();
        QVERIFY(claim(tree));
    }

    void putsBackABundleThatWasTakenAway()
    {
        const ProgramTree tree;
        tree.file(QStringLiteral("data/.Bundle.old/VERSION"), "1.0");
        tree.file(QStringLiteral("data/.Bundle.new-abcdef/VERSION"), "2.0");
        QVERIFY(claim(tree));
        QCOMPARE(tree.content(QStringLiteral("data/Bundle/VERSION")), QByteArray("1.0"));
        QCOMPARE(everything(tree),
                 QStringList({QStringLiteral(".Bundle.lock"), QStringLiteral("Bundle")}));
    }

    void removesWhatWasLeftBesideAWholeBundle()
    {
        const ProgramTree tree;
        tree.file(QStringLiteral("data/Bundle/VERSION"), "2.0");
        tree.file(QStringLiteral("data/.Bundle.old/VERSION"), "1.0");
        tree.file(QStringLiteral("data/.Bundle.new-abcdef/x"), "half");
        QVERIFY(claim(tree));
        QCOMPARE(tree.content(QStringLiteral("data/Bundle/VERSION")), QByteArray("2.0"));
        QCOMPARE(everything(tree),
                 QStringList({QStringLiteral(".Bundle.lock"), QStringLiteral("Bundle")}));
    }

    void remembersATemporaryFolderForTheNextHolder()
    {
        const ProgramTree tree;
        claim(tree)->note(QStringLiteral("/tmp/vmk-longer-than-the-next"));
        claim(tree)->note(QStringLiteral("/tmp/vmk-1"));
        QCOMPARE(claim(tree)->forgotten(), QStringLiteral("/tmp/vmk-1"));
        claim(tree)->note(QString());
        QCOMPARE(claim(tree)->forgotten(), QString());
    }

    void aBundleFolderThatIsALinkIsReplacedAndNotFollowed()
    {
        const ProgramTree tree;
        tree.file(QStringLiteral("elsewhere/keep"), "keep");
        QVERIFY(QDir().mkpath(tree.path(QStringLiteral("data"))));
        QVERIFY(QFile::link(tree.path(QStringLiteral("elsewhere")),
                            tree.path(QStringLiteral("data/Bundle"))));
        const auto folder = claim(tree);
        const auto fresh = folder->fresh();
        tree.file(*fresh + QStringLiteral("/content"), "new");
        QVERIFY(folder->publish(QStringLiteral("1.0"), true));
        QCOMPARE(tree.content(QStringLiteral("data/Bundle/content")), QByteArray("new"));
        QCOMPARE(tree.content(QStringLiteral("elsewhere/keep")), QByteArray("keep"));
    }

    void removesFoldersWithOddPermissionsAndNeverWhatALinkLeadsTo()
    {
        const ProgramTree tree;
        tree.file(QStringLiteral("keep/file"), "keep");
        tree.file(QStringLiteral("gone/a/b/.hidden"), "x");
        QVERIFY(QFile::link(tree.path(QStringLiteral("keep")),
                            tree.path(QStringLiteral("gone/a/link"))));
        const NobodysRights rights(tree.root());
        QCOMPARE(::chmod(QFile::encodeName(tree.path(QStringLiteral("gone/a/b"))).constData(), 0),
                 0);
        QCOMPARE(::chmod(QFile::encodeName(tree.path(QStringLiteral("gone/a"))).constData(), 0500),
                 0);
        removeTree(tree.path(QStringLiteral("gone")));
        QVERIFY(!QFileInfo::exists(tree.path(QStringLiteral("gone"))));
        QCOMPARE(tree.content(QStringLiteral("keep/file")), QByteArray("keep"));
        removeTree(tree.path(QStringLiteral("never-there")));
    }

    void saysWhyTheFolderCannotBeUsed()
    {
        const ProgramTree tree;
        tree.file(QStringLiteral("data"), "a file where a folder should be");
        const auto claimed = BundleFolder::claim(tree.path(QStringLiteral("data/Bundle")));
        QVERIFY(!claimed);
        QVERIFY2(claimed.error().english().startsWith(QStringLiteral("Couldn't make the folder ")),
                 qPrintable(claimed.error().english()));
    }

    void theOldBundleStaysWhenTheNewOneCannotTakeItsPlace()
    {
        const ProgramTree tree;
        tree.file(QStringLiteral("data/Bundle/content"), "old");
        const auto losesTheNewOne = [](const QString &fresh, const QString &) {
            removeTree(fresh);
            return false;
        };
        const auto folder = claim(tree, losesTheNewOne);
        QVERIFY(folder->fresh());
        const auto published = folder->publish(QStringLiteral("2.0"), true);
        QVERIFY(!published);
        QVERIFY2(published.error().english().startsWith(QStringLiteral("Couldn't write ")),
                 qPrintable(published.error().english()));
        QCOMPARE(tree.content(QStringLiteral("data/Bundle/content")), QByteArray("old"));
        QCOMPARE(everything(tree),
                 QStringList({QStringLiteral(".Bundle.lock"), QStringLiteral("Bundle")}));
    }
};

VELDMARK_TEST(BundleFolderTest)
#include "BundleFolderTest.moc"
