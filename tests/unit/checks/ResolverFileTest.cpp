#include "checks/ResolverFile.h"
#include "support/TestProgram.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace veldmark;

namespace {
QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}
} // namespace

class ResolverFileTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readsEveryDocumentedKeyword()
    {
        const ResolverFile file = ResolverFile::parse(
            "# made by hand\n"
            "; another comment\n"
            "\n"
            "domain old.example\n"
            "nameserver 192.168.1.1\n"
            "nameserver\t fe80::1%eth0   # the router\n"
            "search corp.example  lan\n"
            "options ndots:2 timeout:1 attempts:3 rotate\n"
            "options edns0 trust-ad single-request-reopen\n"
            "sortlist 130.155.160.0/255.255.240.0 130.155.0.0\n");
        QCOMPARE(file.nameservers, (QStringList{text("192.168.1.1"), text("fe80::1%eth0")}));
        QCOMPARE(file.search, (QStringList{text("corp.example"), text("lan")}));
        QCOMPARE(file.options.join(u' '),
                 text("ndots:2 timeout:1 attempts:3 rotate edns0 trust-ad single-request-reopen"));
        QCOMPARE(file.sortlist,
                 (QStringList{text("130.155.160.0/255.255.240.0"), text("130.155.0.0")}));
        const auto resolvers = file.resolvers();
        QCOMPARE(resolvers.size(), 1u);
        QCOMPARE(resolvers[0].summary(), text("192.168.1.1, fe80::1%eth0"));
        QVERIFY(!resolvers[0].domain && !resolvers[0].scoped && !resolvers[0].isMDNS);
    }

    void readsServers_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("servers"); // joined with blanks
        const auto row = [](const char *name, const QByteArray &content, const char *servers) {
            QTest::newRow(name) << content << text(servers);
        };
        row("empty", "", "");
        row("no line end", "nameserver 1.2.3.4", "1.2.3.4");
        row("line ends of another system", "nameserver 1.2.3.4\r\nnameserver 5.6.7.8\r\n",
            "1.2.3.4 5.6.7.8");
        row("the first three",
            "nameserver 1.1.1.1\nnameserver 2.2.2.2\nnameserver 3.3.3.3\nnameserver 4.4.4.4\n",
            "1.1.1.1 2.2.2.2 3.3.3.3");
        row("the first three that are addresses",
            "nameserver x\nnameserver 1.1.1.1\nnameserver 999.1.1.1\nnameserver 2.2.2.2\nnameserver 3.3.3.3\n",
            "1.1.1.1 2.2.2.2 3.3.3.3");
        row("scopes that are none",
            "nameserver fe80::1%\nnameserver fe80::2%a%b\nnameserver fe80::3%0123456789abcdef\n",
            "fe80::1 fe80::2 fe80::3");
        row("a scope that is no text",
            "nameserver fe80::1%\xff\x1b[2J\nnameserver fe80::2%e\xcc\x81\n", "fe80::1 fe80::2");
        row("indented", " nameserver 1.2.3.4\n\tnameserver 1.2.3.4\n", "");
        row("commented", "#nameserver 1.2.3.4\n;nameserver 1.2.3.4\n# nameserver 1.2.3.4\n", "");
        row("other case", "Nameserver 1.2.3.4\nNAMESERVER 1.2.3.4\n", "");
        row("longer keyword", "nameservers 1.2.3.4\nnameserver1.2.3.4\n", "");
        row("no address", "nameserver\nnameserver \nnameserver #1.2.3.4\n", "");
        row("a comment stuck to the address", "nameserver 1.2.3.4#x\n", "");
        row("more words", "nameserver 1.2.3.4 5.6.7.8 domain\n", "1.2.3.4");
        row("a name", "nameserver dns.example\n", "");
        row("short forms", "nameserver 127.1\nnameserver 0:0:0:0:0:0:0:1\n", "127.0.0.1 ::1");
        row("IPv6", "nameserver 2001:DB8::53\nnameserver ::ffff:1.2.3.4\n",
            "2001:db8::53 ::ffff:1.2.3.4");
        row("scope by number", "nameserver fe80::1%3\n", "fe80::1%3");
        row("brackets and ports", "nameserver [::1]:53\nnameserver 1.2.3.4:53\n", "");
        row("search before and after", "search a b\nnameserver 1.2.3.4\nsearch c\n", "1.2.3.4");
        row("invalid UTF-8", "search \xff\xfe\nnameserver 1.2.3.4\n", "1.2.3.4");
        row("NUL ends a line, as in the C library",
            QByteArray("nameserver 1.2.3.4\0\nnameserver 5.6.7.8\n", 39), "1.2.3.4 5.6.7.8");
        row("an overlong line", "search " + QByteArray(500000, 'a') + "\nnameserver 1.2.3.4\n",
            "1.2.3.4");
        row("an overlong address",
            "nameserver " + QByteArray(500000, '1') + "\nnameserver 1.2.3.4\n", "1.2.3.4");
    }
    void readsServers()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, servers);
        const ResolverFile file = ResolverFile::parse(content);
        QCOMPARE(file.nameservers.join(u' '), servers);
        QCOMPARE(file.resolvers().empty(), servers.isEmpty());
    }

    void theLastOfSearchAndDomainCounts()
    {
        QCOMPARE(ResolverFile::parse("search a b\ndomain c d\n").search, QStringList{text("c")});
        QCOMPARE(ResolverFile::parse("domain c\nsearch a b\n").search,
                 (QStringList{text("a"), text("b")}));
        QCOMPARE(ResolverFile::parse("search a\nsearch\n").search, QStringList{text("a")});
    }

    void randomBytesAreReadWithoutHarm()
    {
        QRandomGenerator random(11);
        for (int round = 0; round < 3000; ++round) {
            QByteArray bytes;
            for (int i = random.bounded(20); i > 0; --i) {
                bytes += random.bounded(2) ? QByteArray("\nnameserver ")
                                           : QByteArray("1.2:%a\t#\r");
                bytes += static_cast<char>(random.bounded(256));
            }
            QVERIFY(ResolverFile::parse(bytes).nameservers.size() <= ResolverFile::serverLimit);
        }
    }

    void readsOnlyRegularFiles()
    {
        QTemporaryDir folder;
        const QString plain = folder.filePath(text("resolv.conf"));
        QFile file(plain);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("nameserver 1.2.3.4\n");
        file.close();
        const QString link = folder.filePath(text("link"));
        QVERIFY(QFile::link(plain, link));
        QCOMPARE(ResolverFile::read(link), QByteArray("nameserver 1.2.3.4\n"));

        const QString pipe = folder.filePath(text("pipe"));
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        const QString pipeLink = folder.filePath(text("pipe link"));
        QVERIFY(QFile::link(pipe, pipeLink));
        for (const QString &path :
             {pipe, pipeLink, folder.path(), folder.filePath(text("none")), text("/dev/zero")})
            QCOMPARE(ResolverFile::read(path), QByteArray());
    }

    void readsNoMoreThanTheLimit()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath(text("big")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.resize(ResolverFile::sizeLimitBytes * 3));
        file.close();
        QCOMPARE(ResolverFile::read(file.fileName()).size(), ResolverFile::sizeLimitBytes);
    }
};

VELDMARK_BARE_TEST(ResolverFileTest)
#include "ResolverFileTest.moc"
