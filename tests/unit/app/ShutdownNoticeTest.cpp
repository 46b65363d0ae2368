#include "app/ShutdownNotice.h"
#include "support/SessionBus.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QDBusMessage>
#include <QSignalSpy>
#include <QTest>

#include <poll.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace veldmark;

// Gives delay locks like logind: one end of a pipe. The other end shows when the lock is released.
class Login : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    explicit Login(const QDBusConnection &bus) : m_bus(bus)
    {
        m_bus.registerObject(u"/org/freedesktop/login1"_s, this,
                             QDBusConnection::ExportScriptableSlots);
        m_bus.registerService(u"org.freedesktop.login1"_s);
    }
    ~Login() override
    {
        m_bus.unregisterService(u"org.freedesktop.login1"_s); // the connection outlives this object
        m_bus.unregisterObject(u"/org/freedesktop/login1"_s);
        for (const int end : ends)
            ::close(end);
    }

    void prepareForShutdown(bool begins)
    {
        QDBusMessage signal = QDBusMessage::createSignal(u"/org/freedesktop/login1"_s,
                                                         u"org.freedesktop.login1.Manager"_s,
                                                         u"PrepareForShutdown"_s);
        signal << begins;
        m_bus.send(signal);
    }
    bool isHeld(std::size_t lock) const
    {
        pollfd end{ends.at(lock), 0, 0};
        ::poll(&end, 1, 0);
        return !(end.revents & POLLHUP);
    }

    std::vector<int> ends;
    QStringList asked;

public Q_SLOTS:
    Q_SCRIPTABLE QDBusUnixFileDescriptor Inhibit(const QString &what, const QString &who,
                                                 const QString &, const QString &mode)
    {
        asked << what + u' ' + who + u' ' + mode;
        int both[2];
        if (::pipe(both) != 0)
            return QDBusUnixFileDescriptor();
        ends.push_back(both[0]);
        const QDBusUnixFileDescriptor lock(both[1]); // a copy of its own
        ::close(both[1]);
        return lock;
    }

private:
    QDBusConnection m_bus;
};

class ShutdownNoticeTest : public QObject {
    Q_OBJECT

    SessionBus bus;

private Q_SLOTS:
    void initTestCase() { QVERIFY(bus.isRunning()); }

    void tellsWhenAShutdownBegins()
    {
        Login login(bus.connection());
        ShutdownNotice notice(bus.connection());
        QSignalSpy shuttingDown(&notice, &ShutdownNotice::shuttingDown);
        login.prepareForShutdown(false); // a shutdown that was cancelled
        login.prepareForShutdown(true);
        QVERIFY(until([&] { return shuttingDown.count() == 1; }));
        settle();
        QCOMPARE(shuttingDown.count(), 1);
    }

    void holdsOneLockForAsLongAsItIsWanted()
    {
        Login login(bus.connection());
        ShutdownNotice notice(bus.connection());
        notice.setDelaying(true);
        notice.setDelaying(true);
        QVERIFY(until([&] { return login.ends.size() == 1; }));
        settle();
        notice.setDelaying(true);
        settle();
        QCOMPARE(login.asked, QStringList(u"shutdown Veldmark delay"_s));
        QVERIFY(login.isHeld(0));
        notice.setDelaying(false);
        QVERIFY(until([&] { return !login.isHeld(0); }));
        notice.setDelaying(true);
        QVERIFY(until([&] { return login.ends.size() == 2; }));
    }

    void aLockThatComesTooLateIsLetGo()
    {
        Login login(bus.connection());
        ShutdownNotice notice(bus.connection());
        notice.setDelaying(true);
        notice.setDelaying(false); // before the answer
        QVERIFY(until([&] { return login.ends.size() == 1 && !login.isHeld(0); }));
    }

    void withoutLogindNothingHappens()
    {
        ShutdownNotice notice(bus.connection());
        notice.setDelaying(true);
        settle();
        ShutdownNotice other(QDBusConnection(u"no such connection"_s));
        other.setDelaying(true);
        other.setDelaying(false);
    }
};

VELDMARK_TEST(ShutdownNoticeTest)
#include "ShutdownNoticeTest.moc"
