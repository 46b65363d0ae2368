#include "control/ControlPort.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace veldmark;

namespace {

QStringList text(std::initializer_list<const char *> lines)
{
    QStringList list;
    for (const char *line : lines)
        list += QString::fromUtf8(line);
    return list;
}

} // namespace

// Parsing of Tor's replies and events, without a connection.
class ControlPortRepliesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void givesTheValuesOfAReply_data()
    {
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<ControlPort::Values>("values");
        const auto row = [](const char *name, const QStringList &lines,
                            std::initializer_list<std::pair<const char *, const char *>> expected) {
            ControlPort::Values values;
            for (const auto &[key, value] : expected)
                values.insert(QString::fromUtf8(key), QString::fromUtf8(value));
            QTest::newRow(name) << lines << values;
        };
        row("traffic", text({"250-traffic/read=1234", "250-traffic/written=567", "250 OK"}),
            {{"traffic/read", "1234"}, {"traffic/written", "567"}});
        row("equals in the value", text({"250-a=b=c=", "250 OK"}), {{"a", "b=c="}});
        row("empty value", text({"250-a=", "250 OK"}), {{"a", ""}});
        row("empty key", text({"250-=x", "250 OK"}), {{"", "x"}});
        row("equals within the code only", text({"25=x", "2=0-ab", "=250 ", "250 OK"}), {});
        row("shortest line", text({"250=", "250-=", "250 OK"}), {{"", ""}});
        row("the last of two", text({"250-a=1", "250-a=2", "250 OK"}), {{"a", "2"}});
        row("data block", text({"250+k=", "body", "12345=x", ".", "250 OK"}),
            {{"k", ""}, {"5", "x"}});
        row("on the final line", text({"250 a=1"}), {{"a", "1"}});
        row("nothing", {}, {});
    }
    void givesTheValuesOfAReply()
    {
        QFETCH(QStringList, lines);
        QTEST(ControlPort::getInfoValues(lines), "values");
    }

    void givesTheDataBlockOfAKey_data()
    {
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QStringList>("block");
        const auto row = [](const char *name, const QStringList &lines, const QStringList &block) {
            QTest::newRow(name) << lines << block;
        };
        row("a block", text({"250+k=", "one", "two", ".", "250 OK"}), text({"one", "two"}));
        row("an empty block", text({"250+k=", ".", "250 OK"}), {});
        row("unstuffed", text({"250+k=", "..x", "..", "...", ".x", ".", "250 OK"}),
            text({".x", ".", "..", ".x"}));
        row("text on the first line", text({"250+k=zero", "one", ".", "250 OK"}),
            text({"zero", "one"}));
        row("single line", text({"250-k=value", "250-k=other", "250 OK"}), text({"value"}));
        row("empty single line", text({"250-k=", "250 OK"}), {});
        row("single line before the block", text({"250-k=", "250+k=", "x", ".", "250 OK"}), {});
        row("absent", text({"250-other=1", "250 OK"}), {});
        row("a longer key", text({"250-kk=1", "250+k/x=", "1", ".", "250 OK"}), {});
        row("on the final line", text({"250 k=1"}), {});
        row("without end", text({"250+k=", "one"}), text({"one"}));
        row("key inside another block", text({"250+a=", "250-k=1", ".", "250 OK"}), text({"1"}));
        row("nothing", {}, {});
    }
    void givesTheDataBlockOfAKey()
    {
        QFETCH(QStringList, lines);
        QTEST(ControlPort::dataBlock(QStringLiteral("k"), lines), "block");
    }

    void findsTheResolvedHosts_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("hosts");
        const auto row = [](const char *line, const QStringList &hosts) {
            QTest::newRow(line) << QString::fromUtf8(line) << hosts;
        };
        row("650 STREAM 12 NEWRESOLVE 0 [2001:DB8::1]:0 PURPOSE=DNS_REQUEST",
            text({"2001:db8::1"}));
        row("650 STREAM 13 SUCCEEDED 5 MyHost:443 PURPOSE=DNS_REQUEST", text({"myhost"}));
        row("650 STREAM 13 NEW 0 MyHost PURPOSE=DNS_REQUEST", text({"myhost"}));
        row("650 STREAM 13 NEW 0 a:b:53 PURPOSE=DNS_REQUEST", text({"a:b"}));
        row("650 STREAM 13 NEW 0 [open:53 PURPOSE=DNS_REQUEST", text({"[open"}));
        row("650 STREAM  13  NEW 0 a:53 PURPOSE=DNS_REQUEST", text({"a"}));
        row("650 STREAM 13 NEW 0 []:53 PURPOSE=DNS_REQUEST", text({""}));
        row("650 STREAM 13 NEW 0 a:53 PURPOSE=USER", {});
        row("650 STREAM 13 NEW 0 a:53 PURPOSE=USER SOCKS_USERNAME=\"x PURPOSE=DNS_REQUEST\"", {});
        row("650 STREAM 13 NEW 0 a:53 SOCKS_USERNAME=\"x PURPOSE=USER\" PURPOSE=DNS_REQUEST",
            text({"a"}));
        row("650 STREAM 13 NEW PURPOSE=DNS_REQUEST", {});
        row("650 CIRC 13 NEW 0 a:53 PURPOSE=DNS_REQUEST", {});
        row("650-STREAM 13 NEW 0 a:53 PURPOSE=DNS_REQUEST", {});
        row("250 OK", {});
        row("", {});
    }
    void findsTheResolvedHosts()
    {
        QFETCH(QString, line);
        QTEST(ControlPort::resolvedHosts({line}), "hosts");
    }
};

VELDMARK_TEST(ControlPortRepliesTest)
#include "ControlPortRepliesTest.moc"
