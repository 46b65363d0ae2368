#include "report/Redactor.h"

#include "report/KnownSecrets.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {

const QString fingerprint = u"0123456789ABCDEF0123456789ABCDEF01234567"_s;
const QString obfs4 = u"obfs4 198.51.100.7:443 %1 cert=Zm9vYmFyYmF6cXV4+/Zm9v iat-mode=0"_s.arg(
    fingerprint);
const QString snowflake
    = u"snowflake 192.0.2.3:80 url=https://broker.example.org/path fronts=front.example.com,cdn.example.net utls-imitate=hellorandomizedalpn"_s;

KnownSecrets known()
{
    KnownSecrets secrets;
    secrets.home = u"/home/jö"_s;
    secrets.homes = {u"/home/jö"_s, u"/home/bob"_s};
    secrets.names = {u"jö"_s, u"bob"_s, u"Jöran Example"_s, u"desk-of-jö"_s, u"tor"_s};
    secrets.bridgeLines = {obfs4, snowflake, u"obfs4 not.a.bridge:1 cert=QWxsIHRoZSBiZXN0"_s};
    secrets.paths = {u"/opt/my own/tor"_s};
    return secrets;
}

QString redacted(const QString &text)
{
    return Redactor(known()).redacted(text);
}

} // namespace

class RedactorTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // By what they look like. Nothing of these is known.
    void replaces_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *title, const QString &text, const QString &expected) {
            QTest::newRow(title) << text << expected;
        };
        row("an address", u"to 203.0.113.9."_s, u"to address-1."_s);
        row("an address with a port", u"203.0.113.9:443"_s, u"address-1:443"_s);
        row("an address in brackets", u"[203.0.113.9]"_s, u"[address-1]"_s);
        row("an address after a letter", u"n203.0.113.9"_s, u"naddress-1"_s);
        row("the same address twice", u"203.0.113.9, 203.0.113.9, 203.0.113.8"_s,
            u"address-1, address-1, address-2"_s);
        row("a network", u"203.0.113.0/24"_s, u"address-1"_s);
        row("zeros before numbers", u"203.000.113.009 203.0.113.9"_s, u"address-1 address-1"_s);
        row("dots in brackets", u"203[.]0[.]113[.]9"_s, u"address-1"_s);
        row("dots in percent", u"203%2E0%2e113%2E9"_s, u"address-1"_s);
        row("dots with full width", u"203．0．113．9"_s, u"address-1"_s);
        row("ideographic dots", u"203。0。113。9"_s, u"address-1"_s);
        row("digits with full width", u"２０３.0.113.9"_s, u"address-1"_s);
        row("numbers with dashes", u"ip-203-0-113-9"_s, u"ip-address-1"_s);
        row("more numbers with dashes", u"ip-1-203-0-113-9"_s, u"ip-address-1"_s);
        row("a blank in percent before it", u"x%20203.0.113.9"_s, u"x address-1"_s);
        row("a zero before it", u"0203.0.113.9 203.0.113.9"_s, u"address-1 address-1"_s);
        row("more numbers than it has", u"0.203.0.113.9"_s, u"address-1"_s);
        row("letters without a width", u"203.0.\u200b113.9"_s, u"address-1"_s);
        row("colours within", u"203.0\x1b[31m.113.9"_s, u"address-1"_s);
        row("a private character", u"\uE000 203.0.113.9"_s, u"\uFFFD address-1"_s);

        row("an address of version 6", u"at 2001:db8::5."_s, u"at address-1."_s);
        row("its long form", u"2001:0DB8:0:0:0:0:0:5 2001:db8::5"_s, u"address-1 address-1"_s);
        row("with a port", u"[2001:db8::5]:443"_s, u"[address-1]:443"_s);
        row("with a zone", u"fe80::1:2%wlan0 up"_s, u"address-1 up"_s);
        row("with an encoded zone", u"[fe80::1:2%25wlan0]"_s, u"[address-1]"_s);
        row("mapped", u"::ffff:203.0.113.9 203.0.113.9"_s, u"address-1 address-1"_s);
        row("mapped in hexadecimal", u"::FFFF:cb00:7109 203.0.113.9"_s, u"address-1 address-1"_s);
        row("colons in percent", u"2001%3Adb8%3A%3A5"_s, u"address-1"_s);
        row("after a letter", u"n2001:db8::5"_s, u"naddress-1"_s);
        row("after a hexadecimal letter", u"b2001:db8::5 1d2001:db8::5"_s,
            u"baddress-1 1daddress-1"_s);
        row("brackets in percent", u"%5B2001:db8::5%5D:443"_s, u"[address-1]:443"_s);
        row("a link's part in percent", u"x%2F2001%3Adb8%3A%3A5"_s, u"x/address-1"_s);
        row("twice in percent", u"2001%253Adb8%253A%253A5"_s, u"address-1"_s);
        row("a part of one", u"2001:db8:85a3:8d3:1319"_s, u"address-1"_s);
        row("a network of version 6", u"2001:db8::/32"_s, u"address-1"_s);

        row("a name", u"at www.example.org."_s, u"at name-1."_s);
        row("names, the same one twice", u"A.example a.example b.example"_s,
            u"name-1 name-1 name-2"_s);
        row("a name of another alphabet", u"пример.рф"_s, u"name-1"_s);
        row("an onion", u"2gzyxa5ihm7nsggfxnu52rck2vv4rvmdlkiu3zzui5du4xyclen53wid.onion:80"_s,
            u"name-1:80"_s);
        row("an onion's name alone", u"2gzyxa5ihm7nsggfxnu52rck2vv4rvmdlkiu3zzui5du4xyclen53wid"_s,
            u"secret-1"_s);
        row("an address in a name", u"9.113.0.203.in-addr.arpa"_s, u"name-1"_s);
        row("a log's name is a name", u"alice.example.log"_s, u"name-1"_s);
        row("mail", u"alice@example"_s, u"name-1"_s);
        row("a unit with a name in it", u"openvpn-client@company-berlin.service"_s, u"name-1"_s);
        row("a name in Punycode", u"XN--E1AFMKFD"_s, u"name-1"_s);
        row("mail with dots", u"a.b+c@mail.example.org"_s, u"name-1"_s);
        row("a link", u"see https://u:p@www.example.org/a?b#c now"_s, u"see https://link-1 now"_s);
        row("a link without dots", u"socks5://proxy:1080"_s, u"socks5://link-1"_s);

        row("a fingerprint", fingerprint, u"fingerprint-1"_s);
        row("in all its forms",
            u"$%1~nick, $%1=nick, %2 %3"_s.arg(
                fingerprint, fingerprint.toLower(),
                u"0123 4567 89AB CDEF 0123 4567 89AB CDEF 0123 4567"_s),
            u"fingerprint-1, fingerprint-1, fingerprint-1 fingerprint-1"_s);
        row("a nickname", u"new bridge descriptor 'MyRelay' (fresh)"_s,
            u"new bridge descriptor 'name-1' (fresh)"_s);
        row("an identity of Ed25519", u"[AbCdEfGhIj/kLmNoPqRsTuVwXyZ+012345678901234]"_s,
            u"[secret-1]"_s);

        row("one without digits", u"[abcdefghijklmnopqrstuvwxyzabcdefghijklmnopq]"_s,
            u"[secret-1]"_s);
        row("a bridge", u"use %1!"_s.arg(obfs4), u"use bridge-1"_s);
        row("a bridge without arguments", u"Bridge obfs4 198.51.100.7:443 failed"_s,
            u"bridge-1 failed"_s);
        row("a plain bridge", u"Bridge 198.51.100.7:443 %1"_s.arg(fingerprint), u"bridge-1"_s);
        row("a bridge of version 6", u"webtunnel [2001:db8::5]:443 url=https://a.example/x"_s,
            u"bridge-1"_s);
        row("a bridge without its transport", u"198.51.100.7:443 cert=abc"_s, u"bridge-1"_s);
        row("a bridge's address afterwards", u"%1\nwith 198.51.100.7:443"_s.arg(obfs4),
            u"bridge-1\nwith bridge-1:443"_s);
        row("a certificate alone",
            u"cert=ssH+9rP8dG2NLDN2XuFw63hIO/9MNNinLmxQDpVa+7kTOa9/m+tGWT1"_s, u"cert=secret-1"_s);

        row("a home", u"in /home/alice/x"_s, u"in home-1/path-1"_s);
        row("a Mac's home", u"/Users/alice and /Users/alice"_s, u"home-1 and home-1"_s);
        row("what is in a home", u"/home/alice/My Papers/of/me.txt: no"_s, u"home-1/path-1: no"_s);
        row("blanks at the end of a path", u"/home/alice/My Secret Plan"_s, u"home-1/path-1"_s);
        row("an apostrophe", u"/home/alice/It's mine/tor: no"_s, u"home-1/path-1: no"_s);
        row("a path in single quotes", u"'/home/alice/Secret Plan' is there"_s,
            u"'home-1/path-1' is there"_s);
        row("a disk", u"/run/media/alice/stick/tor"_s, u"path-1/tor"_s);

        row("a network card", u"aa:bb:cc:dd:ee:ff AA-BB-CC-DD-EE-FF"_s, u"hardware-1 hardware-1"_s);
        row("without signs between", u"aabbccddeeff AA_BB_CC_DD_EE_FF"_s,
            u"hardware-1 hardware-1"_s);
        row("pairs of digits", u"11:22:33:44:55:66:77:88"_s, u"address-1"_s);
        row("a router's way to write it", u"aabb.ccdd.eeff"_s, u"hardware-1"_s);
        row("a device with its number", u"enxaabbccddeeff wlan0"_s, u"hardware-1 wlan0"_s);

        row("a password", u"password=two, Password: three"_s,
            u"password=secret-1, Password: secret-2"_s);
        row("a password of JSON", u"{\"password\": \"two\"}"_s, u"{\"password\": secret-1}"_s);
        row("a password in one word", u"controlPassword: two"_s, u"controlPassword: secret-1"_s);
        row("a proxy's password", u"HTTPSProxyAuthenticator u:p"_s,
            u"HTTPSProxyAuthenticator secret-1"_s);
        row("a wireless network's", u"psk=abc ssid=Home"_s, u"psk=secret-1 ssid=secret-2"_s);
        row("a password in quotes", u"proxy_password = 'a b' c"_s,
            u"proxy_password = secret-1 c"_s);
        row("Tor's own words", u"AUTHENTICATE \"a b\""_s, u"AUTHENTICATE secret-1"_s);
        row("Tor's hash", u"HashedControlPassword 16:ABC"_s, u"HashedControlPassword secret-1"_s);
        row("the control password",
            u"said 7f3a9c0e5b1d2f4a6c8e0b1d3f5a7c9e7f3a9c0e5b1d2f4a6c8e0b1d3f5a7c9e"_s,
            u"said secret-1"_s);
        row("a hash of letters alone", u"abcdefabcdefabcdefabcdef"_s, u"secret-1"_s);
        row("a number of a machine", u"1b4e28ba-2fa1-11d2-883f-0016d3cca427"_s, u"secret-1"_s);
        row("a key", u"dGhpcyBpcyBhIGtleQ12abcd=="_s, u"secret-1"_s);
        row("an endless line", QString(2001, u'x'), u"(a line of 2001 characters is left out)"_s);
    }

    void replaces()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(Redactor(KnownSecrets()).redacted(text), expected);
    }

    void replacesWhatIsKnown_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *title, const QString &text, const QString &expected) {
            QTest::newRow(title) << text << expected;
        };
        row("a bridge as it is typed", u"bridge  %1"_s.arg(obfs4), u"bridge  bridge-1"_s);
        row("with other blanks", QString(snowflake).replace(u' ', u'\t'), u"bridge-1"_s);
        row("its address", u"198.51.100.7:443"_s, u"bridge-1:443"_s);
        row("its fingerprint", u"$%1~nick"_s.arg(fingerprint), u"bridge-1"_s);
        row("its certificate", u"<Zm9vYmFyYmF6cXV4+/Zm9v>"_s, u"<bridge-1>"_s);
        row("its broker", u"broker.example.org, cdn.example.net"_s, u"bridge-1, bridge-1"_s);
        row("two bridges", obfs4 + u'\n' + snowflake, u"bridge-1\nbridge-2"_s);
        row("a line that is no bridge", u"QWxsIHRoZSBiZXN0"_s, u"bridge-1"_s);

        row("the user", u"Jö's, JÖ and jo\u0308, but not Jörg"_s,
            u"name-1's, name-1 and name-1, but not Jörg"_s);
        row("the owner", u"Jöran  Example"_s, u"name-1"_s);
        row("the computer", u"desk-of-jö.local"_s, u"name-1.local"_s);
        row("another account", u"by bob_, bobby"_s, u"by name-1_, bobby"_s);
        row("an ordinary word stays", u"tor and Tor"_s, u"tor and Tor"_s);

        row("the home", u"/home/jö and /home/jö/"_s, u"~ and ~/"_s);
        row("the home in a link", u"x /home/j%C3%B6/a"_s, u"x ~/path-1"_s);
        row("what is in the home", u"/home/jö/a b/c, /home/jö/a b/c, /home/jö/d."_s,
            u"~/path-1, ~/path-1, ~/path-2."_s);
        row("what is in the home in quotes", u"\"/home/jö/a: b c\" d"_s, u"\"~/path-1\" d"_s);
        row("Veldmark's own files", u"/home/jö/.config/veldmark/veldmark.conf"_s,
            u"~/.config/veldmark/veldmark.conf"_s);
        row("a longer name", u"/home/bobby/x /home/bob/x"_s, u"home-1/path-1 home-2/path-2"_s);
        row("a chosen program", u"/opt/my own/tor fails"_s, u"path-1 fails"_s);
    }

    void replacesWhatIsKnown()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(redacted(text), expected);
    }

    void keepsWhatTellsNothing_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text :
             {"127.0.0.1:9050, 127.8.9.10 and [::1]:9051", "::ffff:127.0.0.1",
              "0.0.0.0 :: 255.255.255.255", "Tor 0.4.9.11 is installed: /usr/bin/tor.",
              "Nov 23 06:19:54.123 [notice] Bootstrapped 45%", "2026-11-23T06:19:54.123Z",
              "ip daddr 10.0.0.0/8 accept; fe80::/10", "country: nl",
              "/etc/resolv.conf, /var/lib/veldmark/run/notices.log",
              "tor@default.service, org.veldmark.helper", "check.torproject.org",
              "Libevent 2.1.12-stable, OpenSSL 3.0.15, 6.1.0-25-amd64",
              "/usr/lib/x86_64-linux-gnu/qt6/plugins", "bytesRead: 123456789012",
              "passwordlessInstalled: false", "x", ""})
            QTest::newRow(text) << QString::fromUtf8(text);
    }

    void keepsWhatTellsNothing()
    {
        QFETCH(QString, text);
        QCOMPARE(redacted(text), text);
    }

    void countsFromTheFirstThatAppears()
    {
        Redactor redactor(known());
        QCOMPARE(redactor.redacted(snowflake), u"bridge-1"_s);
        QCOMPARE(redactor.redacted(u"203.0.113.9"_s), u"address-1"_s);
        QCOMPARE(redactor.redacted(u"203.0.113.8 203.0.113.9 "_s + obfs4),
                 u"address-2 address-1 bridge-2"_s);
    }

    // There are 6400 characters for stand-ins.
    void standsForEverythingWithoutEnd()
    {
        Redactor redactor(known());
        QString text;
        for (int i = 0; i < 7000; ++i)
            text += u"%1.example.org\n"_s.arg(i);
        const QString told = redactor.redacted(text);
        QVERIFY(told.startsWith(u"name-1\nname-2\n"_s));
        QVERIFY(told.endsWith(u"\nsecret-1\n"_s));
        QVERIFY(!told.contains(u"example"_s));
    }
};

VELDMARK_TEST(RedactorTest)
#include "RedactorTest.moc"
