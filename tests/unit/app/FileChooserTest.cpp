#include "app/FileChooser.h"
#include "support/SessionBus.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QFileDialog>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

// Answers like the desktop's portal.
class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileChooser")

public:
    explicit Portal(const QDBusConnection &bus) : m_bus(bus)
    {
        m_bus.registerObject(u"/org/freedesktop/portal/desktop"_s, this,
                             QDBusConnection::ExportScriptableSlots);
        m_bus.registerService(u"org.freedesktop.portal.Desktop"_s);
    }

    ~Portal() override
    {
        // the connection outlives this object
        m_bus.unregisterService(u"org.freedesktop.portal.Desktop"_s);
        m_bus.unregisterObject(u"/org/freedesktop/portal/desktop"_s);
    }

    void answer(uint response, const QStringList &uris)
    {
        QDBusMessage signal = QDBusMessage::createSignal(
            request, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        signal << response << QVariantMap{{u"uris"_s, uris}};
        m_bus.send(signal);
    }

    QString title;
    QVariantMap options;
    QString request;
    bool isForNew = false; // the last question was for a file to write
    bool old = false;      // a portal that chooses another path for its request

public Q_SLOTS:
    Q_SCRIPTABLE QDBusObjectPath OpenFile(const QString &parent, const QString &wantedTitle,
                                          const QVariantMap &wanted, const QDBusMessage &message)
    {
        isForNew = false;
        return ask(parent, wantedTitle, wanted, message);
    }
    Q_SCRIPTABLE QDBusObjectPath SaveFile(const QString &parent, const QString &wantedTitle,
                                          const QVariantMap &wanted, const QDBusMessage &message)
    {
        isForNew = true;
        return ask(parent, wantedTitle, wanted, message);
    }

private:
    QDBusObjectPath ask(const QString &, const QString &wantedTitle, const QVariantMap &wanted,
                        const QDBusMessage &message)
    {
        title = wantedTitle;
        options = wanted;
        const QString sender = message.service().mid(1).replace(u'.', u'_');
        request = old ? u"/org/freedesktop/portal/desktop/request/1"_s
                      : u"/org/freedesktop/portal/desktop/request/%1/%2"_s.arg(
                          sender, wanted.value(u"handle_token"_s).toString());
        return QDBusObjectPath(request);
    }

    QDBusConnection m_bus;
};

// A message to it arrives after every earlier message to its connection.
class Echo : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "test.Echo")

public Q_SLOTS:
    Q_SCRIPTABLE void answer() { }
};

namespace {

QFileDialog *qtDialog()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *dialog = qobject_cast<QFileDialog *>(widget); dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

} // namespace

class FileChooserTest : public QObject {
    Q_OBJECT

    SessionBus bus;

    // Returns when `to` has handled everything that `from` has sent so far, and its own messages
    // have reached the bus.
    void assertDelivered(const QDBusConnection &from, QDBusConnection to)
    {
        Echo echo;
        QVERIFY(to.registerObject(u"/echo"_s, &echo, QDBusConnection::ExportScriptableSlots));
        const QDBusPendingCall call = from.asyncCall(QDBusMessage::createMethodCall(
            to.baseService(), u"/echo"_s, u"test.Echo"_s, u"answer"_s));
        QVERIFY(until([&] { return call.isFinished(); }));
        QVERIFY(!call.isError());
    }

private Q_SLOTS:
    void initTestCase() { QVERIFY(bus.isRunning()); }

    void asksThePortal_data()
    {
        QTest::addColumn<bool>("old");
        QTest::newRow("that keeps to the agreed path") << false;
        QTest::newRow("that makes up its own") << true;
    }
    void asksThePortal()
    {
        QFETCH(bool, old);
        const QDBusConnection desktop = bus.connection(), application = bus.connection();
        Portal portal(desktop);
        portal.old = old;
        FileChooser chooser(application);
        QSignalSpy chosen(&chooser, &FileChooser::chosen);
        chooser.ask({.title = u"Choose"_s,
                     .folder = u"/usr/bin"_s,
                     .filterName = u"Applications"_s,
                     .filterPattern = u"*.desktop"_s,
                     .several = true});
        QVERIFY(until([&] { return !portal.request.isEmpty(); }));
        QCOMPARE(portal.title, u"Choose"_s);
        QCOMPARE(portal.options.value(u"multiple"_s).toBool(), true);
        QCOMPARE(portal.options.value(u"current_folder"_s).toByteArray(),
                 QByteArray("/usr/bin\0", 9));
        QVERIFY(portal.options.contains(u"filters"_s));
        // the path of such a portal must be known before it answers
        assertDelivered(desktop, application);
        portal.answer(
            0, {u"file:///usr/share/applications/a%20b.desktop"_s, u"https://example.test/"_s});
        QVERIFY(until([&] { return chosen.count() == 1; }));
        QCOMPARE(chosen.at(0).at(0).toStringList(),
                 QStringList(u"/usr/share/applications/a b.desktop"_s));
        QVERIFY(!qtDialog());
    }

    void asksForAFileToWrite()
    {
        Portal portal(bus.connection());
        FileChooser chooser(bus.connection());
        QSignalSpy chosen(&chooser, &FileChooser::chosen);
        chooser.ask({.title = u"Save"_s, .folder = u"/tmp"_s, .newName = u"report.txt"_s});
        QVERIFY(until([&] { return !portal.request.isEmpty(); }));
        QVERIFY(portal.isForNew);
        QCOMPARE(portal.options.value(u"current_name"_s).toString(), u"report.txt"_s);
        portal.answer(0, {u"file:///tmp/mine.txt"_s});
        QVERIFY(until([&] { return chosen.count() == 1; }));
        QCOMPARE(chosen.at(0).at(0).toStringList(), QStringList(u"/tmp/mine.txt"_s));
    }

    void aCancelledDialogueChoosesNothing()
    {
        Portal portal(bus.connection());
        FileChooser chooser(bus.connection());
        QSignalSpy chosen(&chooser, &FileChooser::chosen);
        chooser.ask({.title = u"Choose"_s});
        QVERIFY(until([&] { return !portal.request.isEmpty(); }));
        portal.answer(1, {});
        portal.request.clear();
        chooser.ask({.title = u"Again"_s}); // its answer comes after that of the first
        QVERIFY(until([&] { return !portal.request.isEmpty(); }));
        portal.answer(0, {u"file:///usr/bin/tor"_s});
        QVERIFY(until([&] { return chosen.count() == 1; }));
        QCOMPARE(chosen.at(0).at(0).toStringList(), QStringList(u"/usr/bin/tor"_s));
    }

    void withoutAPortalQtsOwnDialogueIsShown()
    {
        FileChooser chooser(bus.connection());
        QSignalSpy chosen(&chooser, &FileChooser::chosen);
        chooser.ask({.title = u"Choose"_s, .folder = u"/"_s});
        QVERIFY(until([&] { return qtDialog(); }));
        QCOMPARE(qtDialog()->windowTitle(), u"Choose"_s);
        Q_EMIT qtDialog()->filesSelected({u"/usr/bin/tor"_s});
        QCOMPARE(chosen.count(), 1);
        qtDialog()->close();
    }

    void qtsDialogueWritesAsWell()
    {
        FileChooser chooser(bus.connection());
        chooser.ask({.title = u"Save"_s, .folder = u"/tmp"_s, .newName = u"report.txt"_s});
        QVERIFY(until([&] { return qtDialog(); }));
        QCOMPARE(qtDialog()->acceptMode(), QFileDialog::AcceptSave);
        QCOMPARE(qtDialog()->fileMode(), QFileDialog::AnyFile);
        QCOMPARE(qtDialog()->selectedFiles(), QStringList(u"/tmp/report.txt"_s));
        qtDialog()->close();
    }

    void withoutABusAsWell()
    {
        FileChooser chooser(QDBusConnection(u"no such connection"_s));
        chooser.ask({.title = u"Choose"_s});
        QVERIFY(qtDialog());
        qtDialog()->close();
    }
};

VELDMARK_WINDOWED_TEST(FileChooserTest)
#include "FileChooserTest.moc"
