#include "StandInSession.h"
#include "support/SessionBus.h"
#include "support/TestProgram.h"
#include "ui/LogModel.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QDesktopServices>
#include <QDir>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {

// A desktop's file manager.
class FileManager final : public QDBusVirtualObject {
public:
    explicit FileManager(const QDBusConnection &bus) : m_bus(bus)
    {
        m_bus.registerVirtualObject(u"/org/freedesktop/FileManager1"_s, this);
        m_bus.registerService(u"org.freedesktop.FileManager1"_s);
    }
    ~FileManager() override
    {
        m_bus.unregisterService(u"org.freedesktop.FileManager1"_s);
        m_bus.unregisterObject(u"/org/freedesktop/FileManager1"_s);
    }
    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        if (message.member() != u"ShowItems"_s)
            return false;
        shown << message.arguments().at(0).toStringList();
        connection.send(message.createReply());
        return true;
    }

    QStringList shown;

private:
    QDBusConnection m_bus;
};

} // namespace

// "Show" in the log window on a desktop.
class LogFilesTest : public QObject {
    Q_OBJECT

    SessionBus bus;
    QTemporaryDir folder;
    PlatformProfile profile;
    QStringList opened;

public Q_SLOTS:
    void openFolder(const QUrl &url) { opened << url.toLocalFile(); }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(bus.isRunning());
        qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address());
        QVERIFY(QDBusConnection::sessionBus().isConnected());
        profile.runDirectory = folder.path();
        QDesktopServices::setUrlHandler(u"file"_s, this, "openFolder");
    }
    void cleanupTestCase() { QDesktopServices::unsetUrlHandler(u"file"_s); }
    void cleanup() { opened.clear(); }

    void theFileManagerShowsTheFileAmongTheOthers()
    {
        const FileManager manager(bus.connection());
        StandInLog log;
        LogModel model(log, profile);
        model.reveal(); // no file yet: the folder
        QTRY_COMPARE(manager.shown, QStringList(QUrl::fromLocalFile(folder.path()).toString()));
        const QString file = folder.filePath(u"notices.log"_s);
        QFile notices(file);
        QVERIFY(notices.open(QIODevice::WriteOnly));
        model.reveal();
        QTRY_COMPARE(manager.shown.value(1), QUrl::fromLocalFile(file).toString());
        QTest::qWait(100);
        QCOMPARE(opened, QStringList());
        QVERIFY(model.revealProblem().isEmpty());
    }

    void withoutAFileManagerOnTheBusTheFolderIsOpened()
    {
        StandInLog log;
        LogModel model(log, profile);
        model.reveal();
        QTRY_COMPARE(opened, QStringList(folder.path()));
    }
};

VELDMARK_WINDOWED_TEST(LogFilesTest)
#include "LogFilesTest.moc"
