#include "bridges/ManagedProxy.h"

#include "ProgramTree.h"
#include "support/TestProgram.h"

#include <QElapsedTimer>
#include <QTest>

#include <signal.h>
#include <unistd.h>

using namespace std::chrono_literals;
using namespace veldmark;

namespace {
const QStringList snowflake = {QStringLiteral("snowflake")};

QByteArray script(const QByteArray &body)
{
    return "#!/bin/sh\n" + body;
}
} // namespace

class ManagedProxyTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readsTheAnnouncedTransports_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QStringList>("transports");
        QTest::addColumn<bool>("complete");
        const QStringList obfs4 = {QStringLiteral("obfs4")};
        QTest::newRow("one") << QByteArray(
            "VERSION 1\nCMETHOD obfs4 socks5 127.0.0.1:1\nCMETHODS DONE\n")
                             << obfs4 << true;
        QTest::newRow("CR LF") << QByteArray(
            "VERSION 1\r\nCMETHOD obfs4 socks5 127.0.0.1:1\r\nCMETHODS DONE\r\n")
                               << obfs4 << true;
        QTest::newRow("one refused") << QByteArray(
            "CMETHOD obfs4 socks5 127.0.0.1:1\nCMETHOD-ERROR snowflake no such transport\nCMETHODS DONE\n")
                                     << obfs4 << true;
        QTest::newRow("not done") << QByteArray("CMETHOD obfs4 socks5 127.0.0.1:1\nCMETHODS DONE")
                                  << obfs4 << false;
        QTest::newRow("half a line")
            << QByteArray("VERSION 1\nCMETHOD obfs4 socks5 127.0.0.1:1") << QStringList() << false;
        QTest::newRow("too few words") << QByteArray("CMETHOD obfs4\n") << QStringList() << false;
        QTest::newRow("a longer word")
            << QByteArray("XCMETHOD obfs4 socks5 127.0.0.1:1\nCMETHODS DONE?\n") << QStringList()
            << false;
        QTest::newRow("version refused")
            << QByteArray("VERSION-ERROR no-version\n") << QStringList() << true;
        QTest::newRow("garbage") << QByteArray("\0\xff\n\n\n", 5) << QStringList() << false;
        QTest::newRow("nothing") << QByteArray() << QStringList() << false;
    }

    void readsTheAnnouncedTransports()
    {
        QFETCH(QByteArray, output);
        QFETCH(QStringList, transports);
        QFETCH(bool, complete);
        QCOMPARE(announcedTransports(output), transports);
        QCOMPARE(isAnnouncementComplete(output), complete);
    }

    void theOlderProgramServesTwoOfThem()
    {
        const QString program = QStringLiteral("/usr/bin/obfs4proxy");
        QVERIFY2(QFile::exists(program), "needs the package obfs4proxy");
        const QStringList asked = {QStringLiteral("obfs4"), QStringLiteral("meek_lite"),
                                   QStringLiteral("webtunnel"), QStringLiteral("snowflake")};
        QStringList served = servedTransports(program, asked);
        served.sort();
        QCOMPARE(served, QStringList({QStringLiteral("meek_lite"), QStringLiteral("obfs4")}));
    }

    void theSnowflakeProgramServesSnowflake()
    {
        const QString program = QStringLiteral("/usr/bin/snowflake-client");
        QVERIFY2(QFile::exists(program), "needs the package snowflake-client");
        QCOMPARE(servedTransports(program, {QStringLiteral("obfs4"), QStringLiteral("snowflake")}),
                 snowflake);
    }

    void asksTheWayTorDoes()
    {
        const ProgramTree tree;
        const QString seen = tree.path(QStringLiteral("seen"));
        const QString program = tree.program(
            QStringLiteral("lyrebird"),
            script(
                "env >" + tree.path(QStringLiteral("environment")).toUtf8()
                + "\n"
                  "echo \"$TOR_PT_MANAGED_TRANSPORT_VER $TOR_PT_CLIENT_TRANSPORTS $TOR_PT_EXIT_ON_STDIN_CLOSE\" >"
                + seen.toUtf8()
                + "\n"
                  "[ -d \"$TOR_PT_STATE_LOCATION\" ] && touch \"$TOR_PT_STATE_LOCATION/x\" && echo \"$TOR_PT_STATE_LOCATION\" >>"
                + seen.toUtf8()
                + "\n"
                  "echo VERSION 1; echo CMETHOD snowflake socks5 127.0.0.1:1\n"
                  "echo CMETHOD unasked socks5 127.0.0.1:2; echo CMETHODS DONE; exec sleep 1000\n"));
        QCOMPARE(servedTransports(program, {QStringLiteral("snowflake"), QStringLiteral("obfs4")}),
                 snowflake);
        const QList<QByteArray> lines = tree.content(QStringLiteral("seen")).split('\n');
        QCOMPARE(lines.value(0), QByteArray("1 snowflake,obfs4 1"));
        QVERIFY(lines.value(1).startsWith('/'));
        const QList<QByteArray> environment
            = tree.content(QStringLiteral("environment")).split('\n');
        QVERIFY(environment.contains("PATH=/usr/bin:/bin"));
        QVERIFY(environment.contains("HOME=" + lines.value(1)));
        QVERIFY2(!QFile::exists(QString::fromUtf8(lines.value(1))),
                 "the state folder is left behind");
    }

    void endsTheProgramAndItsChildren()
    {
        const ProgramTree tree;
        const QString ids = tree.path(QStringLiteral("ids"));
        const QString program = tree.program(
            QStringLiteral("lyrebird"),
            script("trap '' TERM\nsleep 1000 &\necho $$ $! >" + ids.toUtf8()
                   + "\n"
                     "echo CMETHOD snowflake socks5 127.0.0.1:1; echo CMETHODS DONE; wait\n"));
        QCOMPARE(servedTransports(program, snowflake), snowflake);
        const QList<QByteArray> numbers
            = tree.content(QStringLiteral("ids")).simplified().split(' ');
        QCOMPARE(numbers.size(), 2);
        for (const QByteArray &number : numbers) {
            // An orphan may stay a zombie until its new parent reaps it; it no longer runs.
            const auto runs = [&number] {
                QFile status(QStringLiteral("/proc/%1/stat").arg(QString::fromUtf8(number)));
                if (!status.open(QIODevice::ReadOnly))
                    return false;
                const QByteArray line = status.readAll();
                return !line.mid(line.lastIndexOf(')') + 2).startsWith('Z');
            };
            QTRY_VERIFY(!runs());
        }
    }

    void programsThatDoNotAnswerServeNothing_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("dies") << script("exit 1\n");
        QTest::newRow("dies half-way") << script("echo CMETHOD snowflake socks5 127.0.0.1:1\n");
        QTest::newRow("hangs") << script(
            "echo CMETHOD snowflake socks5 127.0.0.1:1\nexec sleep 1000\n");
        QTest::newRow("hangs with its output closed") << script("exec >&-\nexec sleep 1000\n");
        QTest::newRow("prints without end") << script("exec cat /dev/zero\n");
        QTest::newRow("prints garbage") << script("head -c 1000 /dev/urandom\n");
        QTest::newRow("refuses") << script(
            "echo CMETHOD-ERROR snowflake no; echo CMETHODS DONE\nexec sleep 1000\n");
        QTest::newRow("no program") << QByteArray("\x7f"
                                                  "ELFnot");
    }

    void programsThatDoNotAnswerServeNothing()
    {
        QFETCH(QByteArray, content);
        const ProgramTree tree;
        QCOMPARE(
            servedTransports(tree.program(QStringLiteral("lyrebird"), content), snowflake, 500ms),
            QStringList());
    }

    void aMissingProgramServesNothing()
    {
        QCOMPARE(servedTransports(QStringLiteral("/nowhere/lyrebird"), snowflake), QStringList());
    }

    void rootDoesNotRunWhatOthersCanChange_data()
    {
        QTest::addColumn<bool>("folderIsOpen");
        QTest::addColumn<int>("permission");
        QTest::newRow("program, others") << false << static_cast<int>(QFile::WriteOther);
        QTest::newRow("program, its group") << false << static_cast<int>(QFile::WriteGroup);
        QTest::newRow("folder above, others") << true << static_cast<int>(QFile::WriteOther);
        QTest::newRow("folder above, its group") << true << static_cast<int>(QFile::WriteGroup);
    }

    void rootDoesNotRunWhatOthersCanChange()
    {
        QFETCH(bool, folderIsOpen);
        QFETCH(int, permission);
        const ProgramTree tree;
        const QString program = tree.program(
            QStringLiteral("open/bin/lyrebird"),
            script("echo CMETHOD snowflake socks5 127.0.0.1:1; echo CMETHODS DONE\n"));
        QCOMPARE(servedTransports(program, snowflake), snowflake);
        const QString opened = folderIsOpen ? tree.path(QStringLiteral("open")) : program;
        QVERIFY(QFile::setPermissions(opened,
                                      QFile::permissions(opened) | QFile::Permissions(permission)));
        QCOMPARE(servedTransports(program, snowflake),
                 ::geteuid() == 0 ? QStringList() : snowflake);
    }
};

VELDMARK_TEST(ManagedProxyTest)
#include "ManagedProxyTest.moc"
