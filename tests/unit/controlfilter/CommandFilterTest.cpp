#include "controlfilter/CommandFilter.h"

#include "controlfilter/ReserveFile.h"
#include "support/TestProgram.h"

#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <cerrno>
#include <fstream>
#include <thread>

#include <fcntl.h>
#include <unistd.h>

using namespace veldmark;
using namespace std::string_literals;

namespace {

using Verdict = CommandFilter::Verdict;

const std::string fingerprint = "0123456789ABCDEF0123456789abcdef01234567";
const std::string refused(CommandFilter::refused);
const std::string ended = refused + std::string(CommandFilter::quit);

const std::string obfs4 = "obfs4 192.0.2.1:443 " + fingerprint + " cert=a+b/c iat-mode=0";
const std::string plain = "192.0.2.2:443";
const CommandFilter::Reserve reserve = {obfs4, plain};
const std::string climb = "SETCONF UseBridges=1 Bridge=\"" + obfs4 + '"';

// What Tor gets when `bytes` come in pieces that end at each of `ends` and at the end.
std::string sent(const std::string &bytes, const std::vector<std::size_t> &ends,
                 const CommandFilter::Reserve &among = {})
{
    CommandFilter filter(among);
    std::string toTor;
    std::size_t start = 0;
    for (const std::size_t end : ends) {
        filter.take(std::string_view(bytes).substr(start, end - start), toTor);
        start = end;
    }
    filter.take(std::string_view(bytes).substr(start), toTor);
    return toTor;
}

} // namespace

class CommandFilterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatVeldmarkUsesPasses_data()
    {
        QTest::addColumn<QByteArray>("line");
        const auto row = [](const std::string &line) {
            QTest::newRow(line.substr(0, 60).c_str()) << QByteArray::fromStdString(line);
        };
        row("AUTHENTICATE \"" + std::string(64, 'f') + '"');
        row("AUTHENTICATE \"\"");
        row("GETINFO traffic/read traffic/written status/circuit-established");
        row("GETINFO status/bootstrap-phase");
        row("GETINFO circuit-status");
        row("GETINFO stream-status");
        row("GETINFO ns/id/" + fingerprint);
        row("GETINFO ip-to-country/192.0.2.1");
        row("GETINFO ip-to-country/2001:db8::1");
        row("SIGNAL NEWNYM");
        row("SETEVENTS STREAM");
        row("SETCONF DisableNetwork=0");
        row("SETCONF DisableNetwork=1");
        row("CLOSECIRCUIT 4294967295");
        row("QUIT");
    }
    void whatVeldmarkUsesPasses()
    {
        QFETCH(const QByteArray, line);
        QVERIFY(CommandFilter::judge(line.toStdString()) == Verdict::passes);
        QCOMPARE(sent(line.toStdString() + "\r\n", {}), line.toStdString() + "\r\n");
        // One character more or less at its end is another command.
        QVERIFY(line == "QUIT" || line.startsWith("AUTH") || line.startsWith("GETINFO ip-")
                || line.startsWith("CLOSE")
                || CommandFilter::judge(line.chopped(1).toStdString()) == Verdict::refused);
        for (const char *more : {" ", " X", "\"", "=", "x"})
            QVERIFY2(CommandFilter::judge((line + more).toStdString()) == Verdict::refused, more);
        QVERIFY(CommandFilter::judge(" " + line.toStdString()) == Verdict::refused);
        QVERIFY(CommandFilter::judge(line.toLower().toStdString()) == Verdict::refused);
    }

    void everythingElseIsRefused_data()
    {
        QTest::addColumn<QByteArray>("line");
        const auto row = [](const std::string &line) {
            QTest::newRow(line.substr(0, 60).c_str()) << QByteArray::fromStdString(line);
        };
        row("");
        for (const char *option :
             {"HTTPSProxy=192.0.2.8:8", "SocksPort=9052", "Bridge=192.0.2.1:1", "ControlPort=9052",
              "Log=\"debug file /x\"", "NoExec=0", "DisableNetwork=2", "DisableNetwork",
              "DisableNetwork=\"0\"", "disablenetwork=0", "DisableNetwork=0 SocksPort=1",
              "DisableNetwork=00", " DisableNetwork=0",
              "ClientTransportPlugin=\"obfs4 exec /bin/sh\"", "UseBridges=0", "UseBridges=1",
              "UseBridges=1 Bridge=\"192.0.2.2:443\""})
            row("SETCONF "s + option);
        for (const char *key :
             {"config-text", "config-file", "info/names", "address", "onions/current",
              "traffic/read  traffic/written", "traffic/read\ttraffic/written", "process/pid",
              "circuit-status ", "circuit-status config-text", "ns/all", "ns/name/x", "ns/id/",
              "ns/id/$0123456789ABCDEF0123456789abcdef0123456", "ip-to-country/",
              "ip-to-country/ipv4-available", "ip-to-country/192.0.2.1/8",
              "ip-to-country/fe80::1%lo", ""})
            row("GETINFO "s + key);
        row("GETINFO ns/id/" + fingerprint + "0");
        row("GETINFO ns/id/" + fingerprint.substr(1));
        row("GETINFO");
        std::string many = "GETINFO traffic/read";
        for (int more = 0; more < 8; ++more)
            many += " traffic/read";
        row(many);
        for (const char *command : {"SIGNAL RELOAD",
                                    "SIGNAL SHUTDOWN",
                                    "SIGNAL DUMP",
                                    "SIGNAL HALT",
                                    "SIGNAL NEWNYM HALT",
                                    "SETEVENTS",
                                    "SETEVENTS STREAM CIRC",
                                    "SETEVENTS EXTENDED STREAM",
                                    "LOADCONF",
                                    "RESETCONF HTTPSProxy",
                                    "GETCONF HashedControlPassword",
                                    "SAVECONF",
                                    "MAPADDRESS a=b",
                                    "EXTENDCIRCUIT 0",
                                    "SETCIRCUITPURPOSE 1 purpose=x",
                                    "ATTACHSTREAM 1 2",
                                    "REDIRECTSTREAM 1 x",
                                    "CLOSESTREAM 1 1",
                                    "POSTDESCRIPTOR",
                                    "RESOLVE x",
                                    "HSFETCH x",
                                    "HSPOST",
                                    "ADD_ONION NEW:BEST Port=80",
                                    "DEL_ONION x",
                                    "USEFEATURE VERBOSE_NAMES",
                                    "PROTOCOLINFO 1",
                                    "AUTHCHALLENGE SAFECOOKIE 00",
                                    "TAKEOWNERSHIP",
                                    "DROPGUARDS",
                                    "DROPOWNERSHIP",
                                    "DROPTIMEOUTS",
                                    "ONION_CLIENT_AUTH_VIEW",
                                    "AUTHENTICATE",
                                    "AUTHENTICATE 00",
                                    "AUTHENTICATE \"",
                                    "AUTHENTICATE \"a\"b\"",
                                    "AUTHENTICATE \"a\\\"\"",
                                    "CLOSECIRCUIT",
                                    "CLOSECIRCUIT ",
                                    "CLOSECIRCUIT 1 IfUnused",
                                    "CLOSECIRCUIT -1",
                                    "CLOSECIRCUIT 12345678901",
                                    "QUIT 1",
                                    "GET / HTTP/1.1"})
            row(command);
        row("AUTHENTICATE \"" + std::string(129, 'a') + '"');
    }
    void everythingElseIsRefused()
    {
        QFETCH(const QByteArray, line);
        if (line.contains('\t')) {
            QVERIFY(CommandFilter::judge(line.toStdString()) == Verdict::ends);
            return;
        }
        QVERIFY(CommandFilter::judge(line.toStdString()) == Verdict::refused);
        QCOMPARE(sent(line.toStdString() + "\r\nQUIT\r\n", {}), refused + "QUIT\r\n");
    }

    void bridgesInReservePass()
    {
        const std::string both = climb + " Bridge=\"" + plain + '"';
        for (const std::string &line :
             {climb, "SETCONF UseBridges=1 Bridge=\"" + plain + '"', both,
              "SETCONF UseBridges=1 Bridge=\"" + plain + "\" Bridge=\"" + obfs4 + '"'}) {
            QVERIFY2(CommandFilter::judge(line, reserve) == Verdict::passes, line.c_str());
            QVERIFY2(CommandFilter::judge(line) == Verdict::refused, line.c_str());
            for (const char *more : {" ", "\"", " Bridge=", " Bridge=\"\"", " SocksPort=1"})
                QVERIFY2(CommandFilter::judge(line + more, reserve) == Verdict::refused, more);
            for (std::size_t at = 0; at < line.size(); ++at) {
                std::string less = line;
                less.erase(at, 1);
                QVERIFY2(CommandFilter::judge(less, reserve) == Verdict::refused, less.c_str());
            }
        }
        QCOMPARE(sent(both + "\r\nQUIT\r\n", {}, reserve), both + "\r\nQUIT\r\n");
    }

    void nothingElseOfBridgesPasses()
    {
        for (const char *options :
             {"UseBridges=0", "UseBridges=1", "UseBridges=1 Bridge=192.0.2.2:443",
              "UseBridges=1 Bridge=\"192.0.2.3:443\"", "UseBridges=1 Bridge=\"\"",
              "UseBridges=1 Bridge=\"192.0.2.2:443 \"", "UseBridges=1 Bridge=\" 192.0.2.2:443\"",
              "UseBridges=1 Bridge=\"192.0.2.2:443", "UseBridges=1 Bridge=\"192.0.2.2:443\\\"",
              "Bridge=\"192.0.2.2:443\" UseBridges=1", "Bridge=\"192.0.2.2:443\"",
              "UseBridges=1 Bridge=\"192.0.2.2:443\"  Bridge=\"192.0.2.2:443\"",
              "UseBridges=1 Bridge=\"192.0.2.2:443\"Bridge=\"192.0.2.2:443\"",
              "UseBridges=1 Bridge=\"192.0.2.2:443\" Bridge=\"192.0.2.3:443\"",
              "UseBridges=1 Bridge=\"192.0.2.2:443\" HTTPSProxy=192.0.2.8:8",
              "UseBridges=1 Bridge=\"192.0.2.2:443\" ClientTransportPlugin=\"obfs4 exec /bin/sh\"",
              "usebridges=1 bridge=\"192.0.2.2:443\""})
            QVERIFY2(CommandFilter::judge("SETCONF "s + options, reserve) == Verdict::refused,
                     options);
    }

    void theLongestCommandWithBridges()
    {
        const std::string start = "SETCONF UseBridges=1 Bridge=\"";
        const std::string bridge = "192.0.2.1:1 "
            + std::string(CommandFilter::largestClimb - start.size() - 13, 'a');
        const std::string longest = start + bridge + '"';
        QCOMPARE(longest.size(), CommandFilter::largestClimb);
        QCOMPARE(sent(longest + "\r\n", {}, {bridge}), longest + "\r\n");
        QCOMPARE(sent(longest + "\r\n", {5, 600, 9000}, {bridge}), longest + "\r\n");
        QCOMPARE(sent(longest + "a\r\n", {}, {bridge}), ended);
        // Without bridges in reserve, and for every other command, lines stay short.
        QCOMPARE(sent(longest + "\r\n", {}), ended);
        QCOMPARE(sent("GETINFO " + longest + "\r\n", {}, {bridge}), ended);
    }

    void theFileOfBridgesIsReadWhole()
    {
        const QTemporaryDir folder;
        const std::string path = folder.filePath(QStringLiteral("reserve")).toStdString();
        const auto read = [&path](const std::string &text) {
            std::ofstream(path, std::ios::trunc) << text;
            const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
            const auto lines = readReserve(file);
            const int reason = errno;
            close(file);
            errno = reason;
            return lines;
        };
        QVERIFY(read(obfs4 + '\n' + plain + '\n') == reserve);
        QVERIFY(read(obfs4 + '\n' + plain) == reserve);
        QVERIFY(read("") == CommandFilter::Reserve());
        std::string many;
        for (int line = 0; line < 100; ++line)
            many += plain + '\n';
        QVERIFY(read(many));
        for (const std::string &bad :
             {many + plain + '\n', "\n"s, plain + "\n\n", plain + "\"\n", plain + "\\\n",
              plain + "\r\n", plain + "\t\n", plain + "\0\n"s, plain + "\xc3\xa4\n",
              plain + std::string(4096, 'a'), std::string(1 << 20, '\n')})
            QVERIFY2(!read(bad), bad.substr(0, 80).c_str());
        QCOMPARE(errno, EINVAL);
        QVERIFY(!readReserve(-1));
        QCOMPARE(errno, EBADF);
        // Through a pipe, in pieces.
        std::array<int, 2> pipe{};
        QCOMPARE(::pipe(pipe.data()), 0);
        std::thread writer([&pipe] {
            for (const char c : obfs4 + '\n' + plain + '\n')
                QCOMPARE(write(pipe[1], &c, 1), 1);
            close(pipe[1]);
        });
        QVERIFY(readReserve(pipe[0]) == reserve);
        writer.join();
        close(pipe[0]);
    }

    void whatTorMayDivideOtherwiseEndsTheConnection_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("several lines") << QByteArray("+LOADCONF\r\nSIGNAL NEWNYM\r\n.");
        QTest::newRow("nul") << QByteArray("SIGNAL NEWNYM\0", 14);
        QTest::newRow("nul, then a command") << QByteArray("QUIT\0SETCONF Log=x", 18);
        QTest::newRow("carriage return") << QByteArray("SIGNAL NEWNYM\rSETCONF SocksPort=1");
        QTest::newRow("two carriage returns") << QByteArray("SIGNAL NEWNYM\r");
        QTest::newRow("tab") << QByteArray("SIGNAL\tNEWNYM");
        QTest::newRow("delete") << QByteArray("AUTHENTICATE \"\x7f\"");
        QTest::newRow("not ASCII") << QByteArray("AUTHENTICATE \"\xc3\xa4\"");
        QTest::newRow("too long") << QByteArray(CommandFilter::largestLine + 1, 'a');
        QTest::newRow("far too long") << QByteArray(100'000, 'a');
    }
    void whatTorMayDivideOtherwiseEndsTheConnection()
    {
        QFETCH(const QByteArray, line);
        const std::string before = "SIGNAL NEWNYM\r\n";
        QCOMPARE(sent(before + line.toStdString() + "\r\nSIGNAL NEWNYM\r\n", {}), before + ended);
    }

    void theLongestLine()
    {
        const std::string longest(CommandFilter::largestLine, 'a');
        QCOMPARE(sent(longest + "\r\nQUIT\r\n", {}), refused + "QUIT\r\n");
        QCOMPARE(sent(longest + "\nQUIT\r\n", {}), refused + "QUIT\r\n");
        QCOMPARE(sent(longest + "a\r\nQUIT\r\n", {}), ended);
        QCOMPARE(sent(longest + "a\nQUIT\r\n", {}), ended);
        QCOMPARE(sent(longest + "\r", {}), std::string()); // may go on
        QCOMPARE(sent(longest + "aa", {}), ended);         // without waiting for its end
    }

    void aBareLineFeedEndsALineForBoth()
    {
        QCOMPARE(sent("SIGNAL NEWNYM\nSETCONF SocksPort=1\nQUIT\n", {}),
                 "SIGNAL NEWNYM\r\n" + refused + "QUIT\r\n");
    }

    void halfALineIsNotSent()
    {
        QCOMPARE(sent("SIGNAL NEWNYM", {}), std::string());
        QCOMPARE(sent("SIGNAL NEWNYM\r", {}), std::string());
    }

    void theDivisionIntoPiecesChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("commands") << QByteArray(
            "AUTHENTICATE \"a\"\r\nGETINFO config-text\r\n\r\nSETCONF DisableNetwork=1\r\nQUIT\r\n");
        QTest::newRow("an end within")
            << QByteArray("SIGNAL NEWNYM\r\n+LOADCONF\r\nSocksPort 1\r\n.\r\nSIGNAL NEWNYM\r\n");
        QTest::newRow("carriage returns") << QByteArray("QUIT\r\r\nQUIT\r\n");
        QTest::newRow("bridges") << QByteArray::fromStdString(climb + "\r\n" + climb + "x\r\n"
                                                              + climb + '\n' + climb + "\r\r\n");
        QTest::newRow("too long") << "QUIT\r\n" + QByteArray(CommandFilter::largestLine + 1, 'a')
                + "\r\nQUIT\r\n";
    }
    void theDivisionIntoPiecesChangesNothing()
    {
        QFETCH(const QByteArray, bytes);
        const std::string all = bytes.toStdString();
        const std::string expected = sent(all, {}, reserve);
        std::vector<std::size_t> everyByte;
        for (std::size_t first = 1; first < all.size(); ++first) {
            QCOMPARE(sent(all, {first}, reserve), expected);
            everyByte.push_back(first);
        }
        QCOMPARE(sent(all, everyByte, reserve), expected);
    }
};

VELDMARK_TEST(CommandFilterTest)
#include "CommandFilterTest.moc"
