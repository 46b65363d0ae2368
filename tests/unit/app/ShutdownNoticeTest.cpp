#include "app/ShutdownNotice.h"
#include "support/Workbench.h"

#include <QDBusMessage>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <poll.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {

// Gives delay locks as logind does: the end of a pipe, whose other end tells when it has been let go.
class Login : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    explicit Login(const QDBusConnection &bus) : m_bus(bus)
    {
        m_bus.registerObject(u"/org/freedesktop/login1"_s, this, QDBusConnection::ExportScriptableSlots);
        m_bus.registerService(u"org.freedesktop.login1"_s);
    }
    ~Login() override
    {
        for (const int end : ends)
            ::close(end);
    }

    void prepareForShutdown(bool begins)
    {
        QDBusMessage signal = QDBusMessage::createSignal(u"/org/freedesktop/login1"_s,
                                                         u"org.freedesktop.login1.Manager"_s, u"PrepareForShutdown"_s);
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
    Q_SCRIPTABLE QDBusUnixFileDescriptor Inhibit(const QString &what, const QString &who, const QString &,
                                                 const QString &mode)
    {
        asked << what + u' ' + who + u' ' + mode;
        int pipe[2];
        if (::pipe(pipe) != 0)
            return {};
        ends.push_back(pipe[0]);
        const QDBusUnixFileDescriptor lock(pipe[1]); // a copy of its own
        ::close(pipe[1]);
        return lock;
    }

private:
    QDBusConnection m_bus;
};

} // namespace

class ShutdownNoticeTest : public QObject {
    Q_OBJECT

    QProcess m_daemon;
    QString m_address;
    int m_names = 0;

    QDBusConnection connection() { return QDBusConnection::connectToBus(m_address, u"test%1"_s.arg(++m_names)); }

private Q_SLOTS:
    void initTestCase()
    {
        m_daemon.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        while (!m_address.endsWith(u'\n') && m_daemon.waitForReadyRead(10000))
            m_address += QString::fromUtf8(m_daemon.readAllStandardOutput());
        m_address = m_address.trimmed();
        QVERIFY(m_address.startsWith(u"unix:"_s));
    }
    void cleanupTestCase()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    void tellsWhenAShutdownBegins()
    {
        Login login(connection());
        ShutdownNotice notice(connection());
        QSignalSpy shuttingDown(&notice, &ShutdownNotice::shuttingDown);
        login.prepareForShutdown(false); // one that was called off
        login.prepareForShutdown(true);
        QVERIFY(until([&] { return shuttingDown.count() == 1; }));
        settle();
        QCOMPARE(shuttingDown.count(), 1);
    }

    void holdsOneLockForAsLongAsItIsWanted()
    {
        Login login(connection());
        ShutdownNotice notice(connection());
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
        Login login(connection());
        ShutdownNotice notice(connection());
        notice.setDelaying(true);
        notice.setDelaying(false); // before the answer
        QVERIFY(until([&] { return login.ends.size() == 1 && !login.isHeld(0); }));
    }

    void withoutLogindNothingHappens()
    {
        ShutdownNotice notice(connection());
        notice.setDelaying(true);
        settle();
        ShutdownNotice other(QDBusConnection(u"no such connection"_s));
        other.setDelaying(true);
        other.setDelaying(false);
    }
};

QTEST_GUILESS_MAIN(ShutdownNoticeTest)
#include "ShutdownNoticeTest.moc"
