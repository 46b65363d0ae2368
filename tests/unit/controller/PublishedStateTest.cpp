#include "controller/PublishedState.h"
#include "support/SettingValues.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {

class Shouting final : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return QString::fromUtf8(source).toUpper();
    }
};

} // namespace

class PublishedStateTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyPublishedFieldIsThereUnderItsName()
    {
        Workbench bench;
        const QStringList fields
            = u"strictMode allowLocalNetwork separateApps exitCountry customTorPath bridgeChoice customBridges climb ladder climbOffer "
              "bypassApps autoConnect optimizeSpeed separated latencyMs optimizeStatus isOptimizing transports activeBridge "
              "terminalMode phase phaseChanges activeMode bootstrapProgress statusDetail bootstrapProblem killSwitch killSwitchSince exitIP torVerified leakStatus "
              "bytesRead bytesWritten stall denyingFirewalls isChecking otherSession canCancel errorMessage dnsStatus passwordlessInstalled startupError circuits "
              "circuitError transportDownload terminalError terminalHint settingsProblems title menuBarSymbol level"_s
                  .split(u' ');
        const QJsonObject state = publishedState(bench.controller());
        for (const QString &field : fields)
            QVERIFY2(state.contains(field), qPrintable(field));
        QCOMPARE(state.size(), fields.size());
        // Each field has a change signal.
        const QStringList derived = {u"title"_s, u"menuBarSymbol"_s, u"level"_s,
                                     u"killSwitchSince"_s, u"phaseChanges"_s};
        for (const QString &field : fields)
            QVERIFY2(derived.contains(field) != (bench.controller().fieldNamed(field) != nullptr),
                     qPrintable(field));
    }

    void thePhasesHaveTheirTimes()
    {
        const auto before = QDateTime::currentDateTimeUtc();
        Workbench bench;
        const auto phases = [&bench] {
            QStringList names;
            for (const QJsonValue &change :
                 publishedState(bench.controller())[u"phaseChanges"_s].toArray())
                names << change[u"phase"_s].toString();
            return names.join(u' ');
        };
        QCOMPARE(phases(), u"disconnected"_s);
        QVERIFY(bench.connect());
        bench.disconnect();
        QCOMPARE(phases(), u"disconnected connecting connected disconnecting disconnected"_s);
        QDateTime last = before.addMSecs(-1);
        for (const QJsonValue &change :
             publishedState(bench.controller())[u"phaseChanges"_s].toArray()) {
            const auto at = QDateTime::fromString(change[u"at"_s].toString(), Qt::ISODateWithMs);
            QVERIFY(at.isValid() && at >= last && at <= QDateTime::currentDateTimeUtc());
            last = at;
        }
        for (int i = 0; i < 12; ++i) {
            QVERIFY(bench.connect());
            bench.disconnect();
        }
        QCOMPARE(bench.controller().phaseChanges().size(), TorController::mostPhaseChanges);
        QVERIFY(phases().endsWith(u" disconnecting disconnected"_s));
    }

    void withoutASession()
    {
        Workbench bench;
        const QJsonObject state = publishedState(bench.controller());
        QCOMPARE(state.value(u"phase"_s), QJsonValue(u"disconnected"_s));
        QCOMPARE(state.value(u"bridgeChoice"_s), QJsonValue(u"off"_s));
        QCOMPARE(state.value(u"leakStatus"_s), QJsonValue(u"notTested"_s));
        QCOMPARE(state.value(u"dnsStatus"_s), QJsonValue(u"unknown"_s));
        QCOMPARE(state.value(u"strictMode"_s), QJsonValue(true));
        QCOMPARE(state.value(u"bypassApps"_s), QJsonValue(QJsonArray()));
        QCOMPARE(state.value(u"bytesRead"_s), QJsonValue(0));
        for (const char *absent : {"activeMode", "activeBridge", "killSwitch", "killSwitchSince",
                                   "exitIP", "torVerified", "latencyMs", "errorMessage"})
            QVERIFY2(state.value(QLatin1String(absent)).isNull(), absent);
    }

    void withASession()
    {
        Workbench bench;
        TorController &c = bench.controller();
        DNSResolver leaking;
        leaking.nameservers = {u"192.168.1.1"_s};
        bench.resolvers.answer = {leaking};
        bench.probe.directAnswer = IPCheck{false, u"198.51.100.7"_s};
        bench.transports.lyrebird = u"/opt/lyrebird"_s;
        bench.transports.source = u"Tor Browser"_s;
        c.bridgeChoice.set(BridgeChoice::custom);
        c.customBridges.set(u"192.0.2.1:443"_s);
        QVERIFY(bench.connect());
        bench.setCounters("9007199254740993", "2"); // more than a double can represent exactly
        QVERIFY(bench.tick());
        const QJsonObject state = publishedState(c);
        QCOMPARE(state.value(u"phase"_s), QJsonValue(u"connected"_s));
        QCOMPARE(state.value(u"title"_s), QJsonValue(u"DNS Leak"_s));
        QCOMPARE(state.value(u"activeMode"_s), QJsonValue(u"strict"_s));
        QCOMPARE(state.value(u"activeBridge"_s), QJsonValue(u"custom"_s));
        QCOMPARE(state.value(u"killSwitch"_s), QJsonValue(u"standing"_s));
        QCOMPARE(state.value(u"killSwitchSince"_s), QJsonValue(u"2027-01-15T08:00:00Z"_s));
        QCOMPARE(state.value(u"level"_s), QJsonValue(u"danger"_s));
        QCOMPARE(state.value(u"menuBarSymbol"_s), QJsonValue(u"exclamationmark.shield"_s));
        QCOMPARE(state.value(u"statusDetail"_s),
                 QJsonValue(u"Lookups can go around Tor, and your real address can be seen"_s));
        QCOMPARE(state.value(u"leakStatus"_s),
                 QJsonValue(QJsonObject{{u"exposed"_s, u"198.51.100.7"_s}}));
        QCOMPARE(state.value(u"dnsStatus"_s),
                 QJsonValue(QJsonObject{{u"leak"_s, QJsonArray{u"192.168.1.1"_s}}}));
        QCOMPARE(state.value(u"torVerified"_s), QJsonValue(true));
        QCOMPARE(state.value(u"bytesRead"_s).toInteger(), qint64(9007199254740993));
        QCOMPARE(state.value(u"transports"_s).toObject().value(u"lyrebird"_s),
                 QJsonValue(u"/opt/lyrebird"_s));
        QVERIFY(state.value(u"transports"_s).toObject().value(u"webtunnel"_s).isNull());
    }

    // Another failure, or a dismissed message, is not explained by it.
    void theCauseOfAFailedBootstrapGoesWithItsMessage()
    {
        Workbench bench;
        TorController &c = bench.controller();
        const auto cause = [&c] { return publishedState(c).value(u"bootstrapProblem"_s); };
        bench.setBootstrap("PROGRESS=1 WARNING=\"Connection refused\"");
        const auto connecting = c.connect();
        QVERIFY(until([&] { return c.bootstrapProblem() && bench.clock.sleepers() == 2; }));
        QCOMPARE(cause(), QJsonValue(u"Tor reports: Connection refused."_s));
        bench.clock.advance(std::chrono::minutes(5));
        QVERIFY(Workbench::finished(connecting));
        QVERIFY(c.phase() == ConnectionPhase::stale);
        QCOMPARE(cause(), QJsonValue(u"Tor reports: Connection refused."_s));
        bench.failHelper(u"disconnect"_s, u"Could not."_s);
        QVERIFY(Workbench::finished(c.disconnect()));
        QCOMPARE(publishedState(c).value(u"errorMessage"_s), QJsonValue(u"Could not."_s));
        QVERIFY2(cause().isNull(), qPrintable(cause().toString()));
    }

    void hasItsTextsForOtherLanguages()
    {
        Workbench bench;
        TorController &c = bench.controller();
        bench.failHelper(u"connect"_s,
                         u"The record of the former network settings cannot be written."_s);
        bench.connect();
        const QJsonObject state = publishedState(c);
        const QJsonObject texts = publishedTexts(c);
        QCOMPARE(texts.keys(), (QStringList{u"errorMessage"_s, u"statusDetail"_s, u"title"_s}));
        for (const QString &key : texts.keys()) {
            // no untranslatable text
            QVERIFY2(texts.value(key).isObject(), qPrintable(key));
            QCOMPARE(state.value(key), QJsonValue(Text::fromJson(texts.value(key)).english()));
        }
    }

    void isInTheUsersLanguageForPeople()
    {
        Workbench bench;
        const QJsonObject state = publishedState(bench.controller());
        const QJsonObject texts = publishedTexts(bench.controller());
        Shouting shouting;
        QCoreApplication::installTranslator(&shouting);
        const QJsonObject shown = inUsersLanguage(state, texts);
        QCoreApplication::removeTranslator(&shouting);
        QCOMPARE(shown.value(u"title"_s), QJsonValue(u"NOT PROTECTED"_s));
        QCOMPARE(shown.value(u"phase"_s), state.value(u"phase"_s));
        QCOMPARE(inUsersLanguage(state, texts), state); // in English again
        QJsonObject kept = state;
        kept.insert(u"title"_s, QJsonValue::Null);
        QCOMPARE(inUsersLanguage(kept, texts), kept); // a text that the state omits
    }

    void itsListsOfTextsAreInTheUsersLanguageToo()
    {
        Workbench bench;
        bench.writeFile(bench.profile.settingsFile, QByteArray("\0\xff=", 3)); // damaged
        bench.restart();
        const QJsonObject state = publishedState(bench.controller());
        const QJsonArray english = state.value(u"settingsProblems"_s).toArray();
        QCOMPARE(english.size(), 1);
        Shouting shouting;
        QCoreApplication::installTranslator(&shouting);
        const QJsonObject shown = inUsersLanguage(state, publishedTexts(bench.controller()));
        QCoreApplication::removeTranslator(&shouting);
        const QJsonArray shouted = shown.value(u"settingsProblems"_s).toArray();
        QCOMPARE(shouted.size(), 1);
        QVERIFY(shouted != english);
        QCOMPARE(shouted.at(0).toString().toUpper(), english.at(0).toString().toUpper());
    }

    void neverHoldsThePassword()
    {
        Workbench bench;
        QVERIFY(bench.connect());
        const QByteArray text = QJsonDocument(publishedState(bench.controller())).toJson();
        QVERIFY(!text.contains(bench.password().toUtf8()));
    }

    void sets_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QJsonValue>("value"); // undefined: refused
        const QJsonValue refused(QJsonValue::Undefined);
        Workbench bench;
        for (const Field *field : bench.controller().fields()) {
            if (!field->setting() || field->setting()->values.isEmpty())
                continue;
            const QString name = field->name();
            const QByteArray row = name.toUtf8();
            QTest::addRow("%s empty", row.constData()) << name << QString() << refused;
            QTest::addRow("%s other", row.constData()) << name << u"2"_s << refused;
            if (field->toJson().isBool()) {
                QTest::addRow("%s on", row.constData()) << name << u"on"_s << QJsonValue(true);
                QTest::addRow("%s off", row.constData())
                    << name << u" FALSE "_s << QJsonValue(false);
                QTest::addRow("%s yes", row.constData()) << name << u"yes"_s << QJsonValue(true);
                QTest::addRow("%s 0", row.constData()) << name << u"0"_s << QJsonValue(false);
                continue;
            }
            for (const QString &value : field->setting()->values) {
                QTest::addRow("%s %s", row.constData(), qPrintable(value))
                    << name << value << QJsonValue(value);
                QTest::addRow("%s %s in capitals", row.constData(), qPrintable(value))
                    << name << value.toUpper() << refused;
            }
        }
        QTest::newRow("exit") << u"exitCountry"_s << u"de"_s << QJsonValue(u"de"_s);
        QTest::newRow("any exit") << u"exitCountry"_s << QString() << QJsonValue(QString());
        QTest::newRow("exit in capitals") << u"exitCountry"_s << u"DE"_s << refused;
        QTest::newRow("exit with line end") << u"exitCountry"_s << u"de\n"_s << refused;
        QTest::newRow("path") << u"customTorPath"_s << u"/opt/tor"_s << QJsonValue(u"/opt/tor"_s);
        QTest::newRow("path with blanks around")
            << u"customTorPath"_s << u" /opt/tor "_s << QJsonValue(u" /opt/tor "_s);
        QTest::newRow("no path") << u"customTorPath"_s << QString() << QJsonValue(QString());
        QTest::newRow("relative path") << u"customTorPath"_s << u"bin/tor"_s << refused;
        QTest::newRow("bare name") << u"customTorPath"_s << u"tor"_s << refused;
        QTest::newRow("bridges") << u"customBridges"_s << u"a\nb"_s << QJsonValue(u"a\nb"_s);
        QTest::newRow("list") << u"bypassApps"_s
                              << u"[\"/b.desktop\", \"/a.desktop\", \"/b.desktop\"]"_s
                              // sorted, without duplicates
                              << QJsonValue(QJsonArray{u"/a.desktop"_s, u"/b.desktop"_s});
        QTest::newRow("list with a program")
            << u"bypassApps"_s << u"[\"/a.desktop\", \"/usr/bin/b\"]"_s << refused;
        QTest::newRow("list with a relative path")
            << u"bypassApps"_s << u"[\"a.desktop\"]"_s << refused;
        QTest::newRow("empty list") << u"bypassApps"_s << u"[]"_s << QJsonValue(QJsonArray());
        QTest::newRow("no list") << u"bypassApps"_s << u"/a"_s << refused;
        QTest::newRow("list of numbers") << u"bypassApps"_s << u"[1]"_s << refused;
        QTest::newRow("object") << u"bypassApps"_s << u"{}"_s << refused;
        QTest::newRow("no setting") << u"phase"_s << u"connected"_s << refused;
        QTest::newRow("nothing") << QString() << QString() << refused;
        QTest::newRow("wild") << u"a\nb"_s << u"\r\n\t"_s << refused;
        QTest::newRow("long") << u"strictMode"_s << QString(100000, u'x') << refused;
        QTest::newRow("several lines") << u"strictMode"_s << u"a\nb\nc"_s << refused;
    }

    void sets()
    {
        QFETCH(QString, name);
        QFETCH(QString, text);
        QFETCH(QJsonValue, value);
        Workbench bench;
        const QJsonObject before = publishedState(bench.controller());
        const auto set = setSetting(bench.controller(), name, text);
        QCOMPARE(set.has_value(), !value.isUndefined());
        if (set) {
            QCOMPARE(publishedState(bench.controller()).value(name), value);
            bench.restart(); // it is stored
            QCOMPARE(publishedState(bench.controller()).value(name), value);
            return;
        }
        QVERIFY(set.error().kind() == SettingError::Kind::Refused);
        const QString error = set.error().description().english();
        QVERIFY(!error.isEmpty() && error.size() < 400);
        QVERIFY2(!error.contains(u'\n') && !error.contains(u'\r'), qPrintable(error));
        QCOMPARE(publishedState(bench.controller()), before);
    }

    void namesEverySetting()
    {
        Workbench bench;
        const QJsonObject state = publishedState(bench.controller());
        const QStringList names = settingNames(bench.controller());
        for (const QString &name : names) {
            const QJsonValue value = state.value(name);
            QVERIFY2(!value.isUndefined(), qPrintable(name));
            const QString text = value.isArray() ? u"[]"_s
                : value.isBool()                 ? (value.toBool() ? u"true"_s : u"false"_s)
                                                 : value.toString();
            QVERIFY2(setSetting(bench.controller(), name, text), qPrintable(name));
        }
        QCOMPARE(names.size(), 12);
    }

    void saysWhenTheSettingWasNotSaved()
    {
        Workbench bench;
        bench.writeFile(bench.folder.filePath(u"blocked"_s));
        bench.profile.settingsFile = bench.folder.filePath(u"blocked/veldmark.conf"_s);
        bench.restart();
        const auto set = setSetting(bench.controller(), u"exitCountry"_s, u"de"_s);
        QVERIFY(!set);
        QVERIFY(set.error().kind() == SettingError::Kind::NotDone);
        QVERIFY2(set.error().description().english().contains(u"settings"_s),
                 qPrintable(set.error().description().english()));
        QCOMPARE(bench.controller().exitCountry(), u"de"_s);
    }

    void saysWhenTerminalModeCannotBeSetUp()
    {
        Workbench bench;
        bench.writeFile(bench.profile.terminalDirectory); // a file where the folder should be
        const auto set = setSetting(bench.controller(), u"terminalMode"_s, u"on"_s);
        QVERIFY(!set);
        QVERIFY(set.error().kind() == SettingError::Kind::NotDone);
        QVERIFY2(
            set.error().description().english().startsWith(u"Couldn't set up terminal mode: "_s),
            qPrintable(set.error().description().english()));
        QVERIFY(bench.controller().terminalMode());
    }

    void whatAConnectionIsMadeWithHoldsUntilItEnds_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("locked");
        const QStringList free = {u"autoConnect"_s, u"bypassApps"_s, u"terminalMode"_s};
        Workbench bench;
        for (const Field *field : bench.controller().fields()) {
            if (field->setting())
                QTest::newRow(qPrintable(field->name()))
                    << field->name() << anotherValue(*field) << !free.contains(field->name());
        }
    }

    void whatAConnectionIsMadeWithHoldsUntilItEnds()
    {
        QFETCH(QString, name);
        QFETCH(QString, text);
        QFETCH(bool, locked);
        Workbench bench;
        TorController &c = bench.controller();
        const QJsonValue before = publishedState(c).value(name);
        const auto isRefused = [&] {
            const auto set = setSetting(c, name, text);
            return !set && set.error().kind() == SettingError::Kind::Refused
                && set.error().description().english().contains(u"Disconnect to change it."_s)
                && publishedState(c).value(name) == before;
        };
        if (locked) {
            bench.hold(u"connect"_s);
            const auto connecting = c.connect();
            QVERIFY(until([&] { return bench.processes.held() == 1; }));
            QVERIFY(isRefused());
            bench.processes.hold = nullptr;
            bench.processes.release();
            QVERIFY(Workbench::finished(connecting));
            QVERIFY(isRefused());
            const QString same = before.isBool() ? (before.toBool() ? u"on"_s : u"off"_s)
                                                 : before.toString();
            QVERIFY(setSetting(c, name, same)); // nothing changes
            bench.disconnect();
        } else {
            QVERIFY(bench.connect());
        }
        QVERIFY(setSetting(c, name, text));
        QVERIFY(publishedState(c).value(name) != before);
    }

    // As in the windows, check results are valid only while connected.
    void nothingOfADeadSessionIsClaimed()
    {
        Workbench bench;
        bench.tor.reply(
            "GETINFO circuit-status",
            Workbench::block("circuit-status",
                             {"5 BUILT $" + QByteArray(40, 'A') + "~one PURPOSE=GENERAL"}));
        bench.tor.reply("GETINFO stream-status", Workbench::block("stream-status", {}));
        QVERIFY(bench.connect());
        QVERIFY(Workbench::finished(bench.controller().refreshCircuits()));
        QVERIFY(bench.tick());
        const QJsonObject before = publishedState(bench.controller());
        QVERIFY(before.value(u"torVerified"_s).toBool()
                && !before.value(u"circuits"_s).toArray().isEmpty());
        bench.tor.stopListening();
        for (int tick = 0; tick < 3; ++tick)
            QVERIFY(bench.tick());
        const QJsonObject state = publishedState(bench.controller());
        QCOMPARE(state.value(u"phase"_s), QJsonValue(u"stale"_s));
        for (const char *field : {"exitIP", "torVerified", "latencyMs"})
            QVERIFY2(state.value(QLatin1String(field)).isNull(), field);
        QCOMPARE(state.value(u"leakStatus"_s), QJsonValue(u"notTested"_s));
        QCOMPARE(state.value(u"dnsStatus"_s), QJsonValue(u"unknown"_s));
        QCOMPARE(state.value(u"bytesRead"_s), QJsonValue(0));
        QVERIFY(state.value(u"circuits"_s).toArray().isEmpty());
    }
};

VELDMARK_TEST(PublishedStateTest)
#include "PublishedStateTest.moc"
