#include "app/TrayHost.h"
#include "support/ManualClock.h"
#include "support/SessionBus.h"
#include "support/StatusNotifierWatcher.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QSignalSpy>
#include <QTest>

using namespace std::chrono_literals;
using namespace veldmark;

class TrayHostTest : public QObject {
    Q_OBJECT

    SessionBus bus;

private Q_SLOTS:
    void initTestCase() { QVERIFY(bus.isRunning()); }

    void findsTheHostThatIsThere()
    {
        const StatusNotifierWatcher watcher(bus.connection());
        ManualClock clock;
        TrayHost host(bus.connection(), clock);
        QSignalSpy missing(&host, &TrayHost::missing);
        QVERIFY(until([&] { return host.isPresent(); }));
        clock.advance(TrayHost::patience + 1s);
        QCOMPARE(missing.count(), 0);
    }

    void hearsOfAHostThatComesLater()
    {
        ManualClock clock;
        TrayHost host(bus.connection(), clock);
        QSignalSpy changed(&host, &TrayHost::changed), missing(&host, &TrayHost::missing);
        settle();
        QVERIFY(!host.isPresent());
        clock.advance(TrayHost::patience + 1s);
        QCOMPARE(missing.count(), 1);
        // the watcher first and its host later, as some desktops start them
        StatusNotifierWatcher watcher(bus.connection(), false);
        QTest::qWait(50);
        QVERIFY(!host.isPresent());
        watcher.setHost(true);
        QVERIFY(until([&] { return host.isPresent(); }));
        QCOMPARE(changed.count(), 1);
        clock.advance(TrayHost::patience + 1s);
        QCOMPARE(missing.count(), 1);
    }

    void missesAHostThatGoesAndDoesNotComeBack()
    {
        auto watcher = std::make_unique<StatusNotifierWatcher>(bus.connection());
        ManualClock clock;
        TrayHost host(bus.connection(), clock);
        QSignalSpy missing(&host, &TrayHost::missing);
        QVERIFY(until([&] { return host.isPresent(); }));
        watcher.reset(); // the panel starts anew
        QVERIFY(until([&] { return !host.isPresent(); }));
        clock.advance(1s);
        watcher = std::make_unique<StatusNotifierWatcher>(bus.connection());
        QVERIFY(until([&] { return host.isPresent(); }));
        clock.advance(TrayHost::patience);
        QCOMPARE(missing.count(), 0);
        watcher->setHost(false);
        QVERIFY(until([&] { return !host.isPresent(); }));
        clock.advance(TrayHost::patience + 1s);
        QCOMPARE(missing.count(), 1);
    }

    void givesUpWithoutABus()
    {
        ManualClock clock;
        TrayHost host(QDBusConnection(QStringLiteral("none")), clock);
        QSignalSpy missing(&host, &TrayHost::missing);
        clock.advance(TrayHost::patience + 1s);
        QCOMPARE(missing.count(), 1);
        QVERIFY(!host.isPresent());
    }
};

VELDMARK_WINDOWED_TEST(TrayHostTest)
#include "TrayHostTest.moc"
