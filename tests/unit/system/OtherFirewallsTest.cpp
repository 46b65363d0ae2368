#include "system/OtherFirewalls.h"

#include "platform/PlatformProfile.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

class OtherFirewallsTest : public QObject {
    Q_OBJECT

    struct Machine {
        QTemporaryDir folder;
        const PlatformProfile profile = PlatformProfile::linux(Places::below(folder.path()));

        static void write(const QString &path, const QByteArray &content)
        {
            QVERIFY(QDir().mkpath(QFileInfo(path).path()));
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        }
        void setUfw(const QByteArray &enabled, const QByteArray &outgoing) const
        {
            write(folder.filePath(u"etc/ufw/ufw.conf"_s), "# ufw\n" + enabled + "\nLOGLEVEL=low\n");
            write(folder.filePath(u"etc/default/ufw"_s), "IPV6=yes\n" + outgoing + '\n');
        }
        void setRules(const QString &name, const QByteArray &lines) const
        {
            write(folder.filePath(u"etc/ufw/%1.rules"_s.arg(name)),
                  "*filter\n:ufw-user-output - [0:0]\n" + lines + "COMMIT\n");
        }
        void setAllRules() const
        {
            for (const QString &name :
                 {u"before"_s, u"user"_s, u"after"_s, u"before6"_s, u"user6"_s, u"after6"_s})
                setRules(name, {});
        }
    };

private Q_SLOTS:
    void ufwIsOnWhenItsFileSaysSo_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<bool>("isOn");
        for (const char *on :
             {"ENABLED=yes", "ENABLED=YES", "enabled = Yes", "ENABLED=\"yes\"", "  ENABLED='yes'"})
            QTest::newRow(on) << QByteArray(on) << true;
        for (const char *off : {"ENABLED=no", "#ENABLED=yes", "ENABLED=yesterday", "DISABLED=yes"})
            QTest::newRow(off) << QByteArray(off) << false;
    }
    void ufwIsOnWhenItsFileSaysSo()
    {
        QFETCH(QByteArray, line);
        const Machine machine;
        QVERIFY(!OtherFirewalls::isUfwOn(machine.profile)); // no such file
        machine.setUfw(line, {});
        QTEST(OtherFirewalls::isUfwOn(machine.profile), "isOn");
    }

    void ufwDeniesByItsDefaultForWhatGoesOut_data()
    {
        QTest::addColumn<QByteArray>("enabled");
        QTest::addColumn<QByteArray>("outgoing");
        QTest::addColumn<bool>("denies");
        const auto row = [](const char *name, const char *enabled, const char *outgoing,
                            bool denies) {
            QTest::newRow(name) << QByteArray(enabled) << QByteArray(outgoing) << denies;
        };
        row("drop", "ENABLED=yes", "DEFAULT_OUTPUT_POLICY=\"DROP\"", true);
        row("reject", "ENABLED=yes", "DEFAULT_OUTPUT_POLICY=\"REJECT\"", true);
        row("in small letters", "ENABLED=yes", "DEFAULT_OUTPUT_POLICY=\"drop\"", true);
        row("accept", "ENABLED=yes", "DEFAULT_OUTPUT_POLICY=\"ACCEPT\"", false);
        row("what comes in", "ENABLED=yes", "DEFAULT_INPUT_POLICY=\"DROP\"", false);
        row("off", "ENABLED=no", "DEFAULT_OUTPUT_POLICY=\"DROP\"", false);
    }
    void ufwDeniesByItsDefaultForWhatGoesOut()
    {
        QFETCH(QByteArray, enabled);
        QFETCH(QByteArray, outgoing);
        QFETCH(bool, denies);
        const Machine machine;
        machine.setUfw(enabled, outgoing);
        QCOMPARE(OtherFirewalls::denying(machine.profile),
                 denies ? QStringList(u"ufw"_s) : QStringList());
    }

    void aMacHasNone()
    {
        const Machine machine;
        machine.setUfw("ENABLED=yes", "DEFAULT_OUTPUT_POLICY=\"DROP\"");
        QCOMPARE(OtherFirewalls::denying(machine.profile), QStringList(u"ufw"_s));
        QCOMPARE(OtherFirewalls::denying(PlatformProfile::macos(machine.profile.places)),
                 QStringList());
    }

    void theHelpersNoteNamesThemWhileItsSessionLasts()
    {
        const Machine machine;
        machine.setUfw("ENABLED=yes", "DEFAULT_OUTPUT_POLICY=\"DROP\"");
        Machine::write(machine.profile.othersNote,
                       "firewalld\n\ntable ip filter\nfirewalld\nufw\na\x1b[31m\n"
                           + QByteArray(81, 'x') + '\n');
        QCOMPARE(OtherFirewalls::denying(machine.profile), QStringList(u"ufw"_s));
        Machine::write(machine.profile.sessionMarker, "strict\n");
        QCOMPARE(OtherFirewalls::denying(machine.profile),
                 QStringList({u"firewalld"_s, u"table ip filter"_s, u"ufw"_s}));
    }

    void aRuleOfUfwsMayLetAConnectionOut_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<bool>("letsOut");
        const auto row = [](const char *name, const QString &file, const char *line, bool letsOut) {
            QTest::newRow(name) << file << QByteArray(line) + '\n' << letsOut;
        };
        row("no rule", u"user"_s, "# a comment", false);
        row("the web's port", u"user"_s, "-A ufw-user-output -p tcp --dport 443 -j ACCEPT", true);
        row("the first of all", u"before"_s, "-I ufw-before-output -j ACCEPT", true);
        row("over IPv6", u"after6"_s, "-A ufw6-after-output -p udp -j ACCEPT", true);
        row("a chain of the administrator's", u"user"_s, "-A ufw-user-output -j mine", true);
        row("what comes in", u"user"_s, "-A ufw-user-input -p tcp --dport 22 -j ACCEPT", false);
        row("to this computer", u"before"_s, "-A ufw-before-output -o lo -j ACCEPT", false);
        row("answers", u"before"_s,
            "-A ufw-before-output -m conntrack --ctstate RELATED,ESTABLISHED -j ACCEPT", false);
        row("control messages", u"before6"_s,
            "-A ufw6-before-output -p icmpv6 --icmpv6-type echo-request -j ACCEPT", false);
        row("mail, which it refuses", u"user"_s, "-A ufw-user-output -p tcp --dport 25 -j REJECT",
            false);
    }
    void aRuleOfUfwsMayLetAConnectionOut()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, line);
        QFETCH(bool, letsOut);
        const Machine machine;
        machine.setAllRules();
        QVERIFY(OtherFirewalls::isUfwWithoutAWayOut(machine.profile));
        machine.setRules(file, line);
        QCOMPARE(OtherFirewalls::isUfwWithoutAWayOut(machine.profile), !letsOut);
    }

    void rulesThatCannotBeReadMayLetConnectionsOut()
    {
        constexpr qsizetype longest = 64 * 1024;
        const Machine machine;
        machine.setAllRules();
        const QString last = machine.folder.filePath(u"etc/ufw/after6.rules"_s);
        Machine::write(last, QByteArray(longest, '#'));
        QVERIFY(OtherFirewalls::isUfwWithoutAWayOut(machine.profile));
        Machine::write(last, QByteArray(longest + 1, '#'));
        QVERIFY(!OtherFirewalls::isUfwWithoutAWayOut(machine.profile));
        QVERIFY(QFile::remove(last));
        QVERIFY(!OtherFirewalls::isUfwWithoutAWayOut(machine.profile));
    }
};

VELDMARK_TEST(OtherFirewallsTest)
#include "OtherFirewallsTest.moc"
