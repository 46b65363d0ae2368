#include "app/Application.h"
#include "support/SessionBus.h"
#include "support/StatusNotifierWatcher.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QDBusUnixFileDescriptor>
#include <QDir>
#include <QFileInfo>
#include <QTest>

#include <algorithm>

#include <poll.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {

void write(const QString &path, const QByteArray &content)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

// The session's notification service and logind, here on one bus.
class Desktop final : public QDBusVirtualObject {
public:
    explicit Desktop(const QDBusConnection &bus) : m_bus(bus)
    {
        m_isThere = true;
        for (const QString &path : paths())
            m_isThere = m_bus.registerVirtualObject(path, this) && m_isThere;
        for (const QString &name : names())
            m_isThere = m_bus.registerService(name) && m_isThere;
    }
    // The connection outlives this object, so the names are released for the next one.
    ~Desktop() override
    {
        for (const QString &name : names())
            m_bus.unregisterService(name);
        for (const QString &path : paths())
            m_bus.unregisterObject(path);
        if (m_lock >= 0)
            ::close(m_lock);
    }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        if (message.member() == u"Notify"_s) {
            notified << message.arguments().at(3).toString();
            connection.send(message.createReply(uint(1)));
        } else if (message.member() == u"Inhibit"_s) {
            int both[2];
            if (::pipe(both) != 0)
                return false;
            m_lock = both[0];
            connection.send(
                message.createReply(QVariant::fromValue(QDBusUnixFileDescriptor(both[1]))));
            ::close(both[1]);
        } else {
            return false;
        }
        return true;
    }

    void shutDown()
    {
        QDBusMessage signal = QDBusMessage::createSignal(u"/org/freedesktop/login1"_s,
                                                         u"org.freedesktop.login1.Manager"_s,
                                                         u"PrepareForShutdown"_s);
        m_bus.send(signal << true);
    }
    // A shutdown waits for the program.
    bool isHeld() const
    {
        if (m_lock < 0)
            return false;
        pollfd end{m_lock, 0, 0};
        ::poll(&end, 1, 0);
        return !(end.revents & POLLHUP);
    }

    bool isThere() const { return m_isThere; }

    QStringList notified;

private:
    static QStringList paths()
    {
        return {u"/org/freedesktop/Notifications"_s, u"/org/freedesktop/login1"_s};
    }
    static QStringList names()
    {
        return {u"org.freedesktop.Notifications"_s, u"org.freedesktop.login1"_s};
    }

    QDBusConnection m_bus;
    bool m_isThere = false;
    int m_lock = -1;
};

// A computer in a folder. Its helper records its verbs and fails.
struct Computer {
    QTemporaryDir folder;
    PlatformProfile profile;

    Computer()
    {
        const Places places = Places::below(folder.path());
        write(places.applicationDirectory + u"/veldmark-helper.sh"_s,
              "#!/bin/bash\necho \"$1\" >>'" + log().toUtf8()
                  + "'\necho 'ERROR: not here' >&2\nexit 1\n");
        profile = PlatformProfile::linux(places);
        // for those who are not root
        write(profile.promptProgram, "#!/bin/sh\nexec /bin/bash \"$@\"\n");
        QDir().mkpath(places.runtimeDirectory);
    }
    QString log() const { return folder.filePath(u"verbs"_s); }
    QStringList verbs() const
    {
        QFile file(log());
        return file.open(QIODevice::ReadOnly)
            ? QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)
            : QStringList();
    }
};

bool isMainShown(const Application &application)
{
    const QQuickWindow *main = application.windows().find(u"main"_s);
    return main && main->isVisible();
}

} // namespace

// The whole program on a desktop, with and without a tray, and its messages to the desktop.
class DesktopStartTest : public QObject {
    Q_OBJECT

    SessionBus bus;
    std::unique_ptr<Desktop> desktop;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(bus.isRunning());
        qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address());
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", bus.address());
        QVERIFY(QDBusConnection::sessionBus().isConnected());
    }
    void init()
    {
        desktop = std::make_unique<Desktop>(bus.connection());
        QVERIFY(desktop->isThere());
    }
    void cleanup() { desktop.reset(); }

    void withoutATrayAHiddenStartShowsItsWindowAndClosingItIsTold()
    {
        const Computer computer;
        Application application(computer.profile);
        QVERIFY(application.start(true, false));
        QVERIFY(!isMainShown(application)); // a tray may be starting
        QTRY_VERIFY_WITH_TIMEOUT(isMainShown(application), 30'000);
        QVERIFY(desktop->notified.isEmpty());
        application.windows().find(u"main"_s)->close();
        QTRY_COMPARE(desktop->notified, QStringList(u"Veldmark is still running"_s));

        // A later tray is used at once, and no notification follows.
        QVERIFY(!application.tray());
        StatusNotifierWatcher tray(bus.connection());
        QTRY_VERIFY(application.tray());
        QVERIFY(!isMainShown(application));
        Q_EMIT const_cast<Tray *>(application.tray())->openWanted();
        QVERIFY(isMainShown(application));
        application.windows().find(u"main"_s)->close();
        QTest::qWait(100);
        QCOMPARE(desktop->notified.size(), 1);
        tray.setHost(false); // and gone again
        QTRY_COMPARE_WITH_TIMEOUT(desktop->notified.size(), 2, 30'000);
        QVERIFY(!isMainShown(application));
    }

    void withATrayAHiddenStartStaysHidden()
    {
        const StatusNotifierWatcher tray(bus.connection());
        const Computer computer;
        Application application(computer.profile);
        QVERIFY(application.start(true, false));
        QTRY_VERIFY(application.tray());
        QVERIFY(!isMainShown(application));
    }

    void theTrayOpensThePanelAndAsksBeforeItQuits()
    {
        const StatusNotifierWatcher watcher(bus.connection());
        const Computer computer;
        write(computer.profile.sessionMarker, "strict\n");
        Application application(computer.profile);
        QVERIFY(application.start(true, false));
        QTRY_VERIFY(application.tray());
        auto *tray = const_cast<Tray *>(application.tray());
        Q_EMIT tray->panelWanted();
        const QQuickWindow *panel = application.windows().find(u"panel"_s);
        QVERIFY(panel && panel->isVisible());
        Q_EMIT tray->panelWanted();
        QVERIFY(!panel->isVisible());
        Q_EMIT tray->quitWanted();
        const auto asks = [] {
            const QWindowList windows = QGuiApplication::topLevelWindows();
            return std::any_of(windows.begin(), windows.end(), [](const QWindow *window) {
                return window->isVisible() && window->title() == u"Quit Veldmark"_s;
            });
        };
        QTRY_VERIFY(asks());
        QVERIFY(computer.verbs().isEmpty());
    }

    // A click there would open a context menu of Qt's together with the panel.
    void aMacsMenuBarIsNoTray_data()
    {
        QTest::addColumn<bool>("isMenuBar");
        QTest::newRow("tray") << false;
        QTest::newRow("menu bar") << true;
    }
    void aMacsMenuBarIsNoTray()
    {
        QFETCH(bool, isMenuBar);
        const StatusNotifierWatcher watcher(bus.connection());
        Computer computer;
        computer.profile.iconInMenuBar = isMenuBar;
        Application application(computer.profile);
        QVERIFY(application.start(true, false));
        QTRY_VERIFY(application.tray());
        const auto *icon = application.tray()->findChild<QSystemTrayIcon *>();
        QCOMPARE(icon->contextMenu() == nullptr, isMenuBar);
        QCOMPARE(icon->icon().isMask(), isMenuBar);
    }

    void aTrayThatWasFoundBeforeTheStartIsUsed()
    {
        const StatusNotifierWatcher tray(bus.connection());
        const Computer computer;
        Application application(computer.profile);
        // This request comes after the application's, so its answer does as well.
        SystemClock clock;
        const TrayHost host(QDBusConnection::sessionBus(), clock);
        QTRY_VERIFY(host.isPresent());
        QVERIFY(application.start(true, false));
        QVERIFY(application.tray());
    }

    void aPlainStartShowsTheWindowAtOnce()
    {
        const Computer computer;
        Application application(computer.profile);
        QVERIFY(application.start(false, false));
        QVERIFY(isMainShown(application));
    }

    void aShutdownIsHeldUpNoLongerThanItIsOfUse()
    {
        const Computer computer;
        write(computer.profile.sessionMarker, "strict\n");
        Application application(computer.profile);
        QVERIFY(application.start(true, false));
        QTRY_VERIFY(desktop->isHeld());
        QVERIFY(computer.verbs().isEmpty());
        desktop->shutDown();
        QTRY_COMPARE(computer.verbs(), QStringList(u"disconnect"_s)); // and that fails
        QTRY_VERIFY(!desktop->isHeld());
    }
};

VELDMARK_WINDOWED_TEST(DesktopStartTest)
#include "DesktopStartTest.moc"
