#include "controller/WakeNotice.h"
#include "support/SessionBus.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QDBusMessage>
#include <QSignalSpy>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace veldmark;

class WakeNoticeTest : public QObject {
    Q_OBJECT

    SessionBus bus;
    std::optional<QDBusConnection> login;

    // logind's signals before and after a sleep.
    void prepareForSleep(bool begins)
    {
        QDBusMessage signal = QDBusMessage::createSignal(u"/org/freedesktop/login1"_s,
                                                         u"org.freedesktop.login1.Manager"_s,
                                                         u"PrepareForSleep"_s);
        signal << begins;
        login->send(signal);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(bus.isRunning());
        login = bus.connection();
        QVERIFY(login->registerService(u"org.freedesktop.login1"_s));
    }

    void tellsOfTheEndOfASleepAndNotOfItsBeginning()
    {
        WakeNotice notice(bus.connection());
        QSignalSpy awake(&notice, &WakeNotice::awake);
        for (int sleeps = 1; sleeps <= 2; ++sleeps) {
            prepareForSleep(true);
            settle();
            QCOMPARE(awake.count(), sleeps - 1);
            prepareForSleep(false);
            QVERIFY(until([&] { return awake.count() == sleeps; }));
        }
    }

    void withoutABusNothingHappens()
    {
        WakeNotice notice(QDBusConnection(u"no such connection"_s));
        QSignalSpy awake(&notice, &WakeNotice::awake);
        prepareForSleep(false);
        settle();
        QCOMPARE(awake.count(), 0);
    }
};

VELDMARK_TEST(WakeNoticeTest)
#include "WakeNoticeTest.moc"
