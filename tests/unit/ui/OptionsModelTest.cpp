#include "ui/OptionsModel.h"
#include "StandInSession.h"
#include "support/TestProgram.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace veldmark;

class OptionsModelTest : public QObject {
    Q_OBJECT

    PlatformProfile profile = PlatformProfile::linux(Places::below(QStringLiteral("/nowhere")));

private Q_SLOTS:
    void locksWhileAConnectionLasts()
    {
        StandInSession session(profile);
        OptionsModel options(session);
        Snapshot s;
        for (const auto &[phase, locked] : {std::pair{ConnectionPhase::disconnected, false},
                                            {ConnectionPhase::connecting, true},
                                            {ConnectionPhase::connected, true},
                                            {ConnectionPhase::disconnecting, true},
                                            {ConnectionPhase::stale, false}}) {
            s.phase = phase;
            session.show(s);
            QCOMPARE(options.locked(), locked);
        }
    }

    void storesWhatIsChosen()
    {
        StandInSession session(profile);
        OptionsModel options(session);
        options.setStrictMode(false);
        options.setAllowLocalNetwork(false);
        options.setOptimizeSpeed(true);
        options.setTerminalMode(true);
        options.setExitIndex(2);
        options.setBridgeIndex(4);
        options.saveCustomBridges(QStringLiteral("192.0.2.1:443"));
        const Choices &c = session.now().choices;
        QVERIFY(!c.strictMode && !c.allowLocalNetwork && c.optimizeSpeed && c.terminalMode);
        QCOMPARE(c.exitCountry, QStringLiteral("de"));
        QCOMPARE(c.bridgeChoice, BridgeChoice::custom);
        QCOMPARE(c.customBridges, QStringLiteral("192.0.2.1:443"));
        QCOMPARE(options.exitIndex(), 2);
        options.setExitIndex(99);
        options.setBridgeIndex(-1);
        QCOMPARE(session.now().choices, c);
    }

    void warnsOfACountry()
    {
        StandInSession session(profile);
        OptionsModel options(session);
        QCOMPARE(options.exitWarning(), QString());
        options.setExitIndex(1);
        QCOMPARE(
            options.exitWarning(),
            QStringLiteral("Choosing a country means fewer exit relays, so it's slower and you're "
                           "easier to single out."));
    }

    void saysWhatBridgesNeed()
    {
        StandInSession session(profile);
        OptionsModel options(session);
        Snapshot s;
        session.show(s);
        QCOMPARE(options.bridgeNote(), QString());
        QVERIFY(!options.needsDownload());
        s.choices.bridgeChoice = BridgeChoice::obfs4;
        session.show(s);
        QCOMPARE(options.bridgeNote(), QStringLiteral("Needs bridge programs: click Download"));
        QVERIFY(options.needsDownload());
        s.transports.lyrebird = QStringLiteral("/usr/bin/lyrebird");
        s.transports.builtin = {
            {QStringLiteral("obfs4"), {QStringLiteral("obfs4 192.0.2.1:443 cert=a")}}};
        s.transports.source = QStringLiteral("Tor Browser");
        session.show(s);
        QVERIFY(!options.needsDownload());
        QCOMPARE(options.bridgeNote(), QStringLiteral("Built-in bridges from Tor Browser"));
        s.choices.bridgeChoice = BridgeChoice::custom;
        session.show(s);
        QCOMPARE(options.bridgeNote(), QStringLiteral("No bridges added yet"));
        QVERIFY(options.bridgeNoteIsWarning());
    }

    void saysWhichProgramsTheUsersOwnBridgesNeed_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("program"); // the program that it needs; empty: none
        const QString key = QStringLiteral(" 0123456789ABCDEF0123456789ABCDEF01234567");
        QTest::newRow("plain") << QStringLiteral("192.0.2.1:443") << QString();
        QTest::newRow("obfs4") << QStringLiteral("obfs4 192.0.2.1:443") + key
                + QStringLiteral(" cert=abc iat-mode=0")
                               << QStringLiteral("lyrebird");
        QTest::newRow("after a plain one") << QStringLiteral("192.0.2.9:443\nobfs4 192.0.2.1:443")
                + key + QStringLiteral(" cert=abc iat-mode=0")
                                           << QStringLiteral("lyrebird");
        QTest::newRow("snowflake")
            << QStringLiteral("snowflake 192.0.2.1:443") + key << QStringLiteral("snowflake");
        QTest::newRow("webtunnel") << QStringLiteral("webtunnel 192.0.2.1:443") + key
                + QStringLiteral(" url=https://a.example/b")
                                   << QStringLiteral("webtunnel");
        QTest::newRow("webtunnel by lyrebird") << QStringLiteral("webtunnel 192.0.2.1:443") + key
                + QStringLiteral(" url=https://a.example/b")
                                               << QStringLiteral("lyrebird");
    }
    void saysWhichProgramsTheUsersOwnBridgesNeed()
    {
        QFETCH(QString, line);
        QFETCH(QString, program);
        StandInSession session(profile);
        OptionsModel options(session);
        Snapshot s;
        s.choices.bridgeChoice = BridgeChoice::custom;
        s.choices.customBridges = line;
        session.show(s);
        QCOMPARE(options.needsDownload(), !program.isEmpty());
        for (const auto &[name, field] :
             {std::pair(QStringLiteral("lyrebird"), &PluggableTransports::lyrebird),
              {QStringLiteral("snowflake"), &PluggableTransports::snowflake},
              {QStringLiteral("webtunnel"), &PluggableTransports::webtunnel}}) {
            Snapshot with = s;
            with.transports.*field = QStringLiteral("/usr/bin/it");
            session.show(with);
            const bool helps = name == program
                || (name == QLatin1String("lyrebird")
                    && line.startsWith(QLatin1String("webtunnel")))
                || (name == QLatin1String("webtunnel")
                    && line.startsWith(QLatin1String("webtunnel")));
            QCOMPARE(options.needsDownload(), !program.isEmpty() && !helps);
        }
    }

    void aBuiltInBridgeNeedsItsProgramAndItsLines()
    {
        StandInSession session(profile);
        OptionsModel options(session);
        for (const auto &[choice, field] :
             {std::pair(BridgeChoice::obfs4, &PluggableTransports::lyrebird),
              {BridgeChoice::meek, &PluggableTransports::lyrebird},
              {BridgeChoice::snowflake, &PluggableTransports::snowflake}}) {
            for (const bool program : {false, true}) {
                for (const bool lines : {false, true}) {
                    Snapshot s;
                    s.choices.bridgeChoice = choice;
                    if (program)
                        s.transports.*field = QStringLiteral("/usr/bin/it");
                    if (lines)
                        for (const char *key :
                             {"obfs4", "meek", "meek-azure", "meek_lite", "snowflake"})
                            s.transports.builtin.insert(QString::fromLatin1(key),
                                                        QStringList{QStringLiteral("a line")});
                    session.show(s);
                    QVERIFY2(options.needsDownload() == !(program && lines),
                             qPrintable(rawValue(choice) + QString::number(program)
                                        + QString::number(lines)));
                }
            }
        }
    }

    void aCountryOutsideTheListIsShownByItsCode()
    {
        StandInSession session(profile);
        OptionsModel options(session);
        QCOMPARE(options.exitUnlisted(), QString());
        Snapshot s;
        s.choices.exitCountry = QStringLiteral("de");
        session.show(s);
        QCOMPARE(options.exitUnlisted(), QString());
        s.choices.exitCountry = QStringLiteral("at");
        session.show(s);
        QCOMPARE(options.exitIndex(), -1);
        QCOMPARE(options.exitUnlisted(), QStringLiteral("AT"));
        QVERIFY(!options.exitWarning().isEmpty());
    }

    void tellsWhyAnApplicationWasNotOpenedUntilTheNextTry()
    {
        StandInSession session(profile);
        OptionsModel options(session);
        QSignalSpy changed(&options, &OptionsModel::changed);
        Q_EMIT session.launchFailed(
            QStringLiteral("Couldn't open Games without Tor: It has no program."));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(options.launchError(),
                 QStringLiteral("Couldn't open Games without Tor: It has no program."));
        options.launchBypassed(QStringLiteral("/usr/share/applications/games.desktop"));
        QCOMPARE(options.launchError(), QString());
        QCOMPARE(changed.count(), 2);
        Q_EMIT session.launchFailed(QStringLiteral("again"));
        options.forgetLaunchError();
        QCOMPARE(options.launchError(), QString());
    }

    void ownBridgesNeedTheProgramsOfTheirTransports_data()
    {
        QTest::addColumn<QString>("lines");
        QTest::addColumn<QString>("programs"); // that are there
        QTest::addColumn<bool>("needed");
        const QString plain = QStringLiteral("192.0.2.1:443\n");
        const auto line = [](const char *transport) {
            return QString::fromLatin1(transport) + QStringLiteral(" 192.0.2.2:443\n");
        };
        QTest::newRow("plain") << plain << QString() << false;
        QTest::newRow("obfs4") << line("obfs4") << QString() << true;
        QTest::newRow("obfs4, served") << line("obfs4") << QStringLiteral("lyrebird") << false;
        QTest::newRow("obfs4, by no other")
            << line("obfs4") << QStringLiteral("snowflake webtunnel") << true;
        QTest::newRow("a plain one before it") << plain + line("obfs4") << QString() << true;
        QTest::newRow("snowflake")
            << line("snowflake") << QStringLiteral("lyrebird webtunnel") << true;
        QTest::newRow("snowflake, served")
            << line("snowflake") << QStringLiteral("snowflake") << false;
        QTest::newRow("webtunnel") << line("webtunnel") << QStringLiteral("snowflake") << true;
        QTest::newRow("webtunnel, served")
            << line("webtunnel") << QStringLiteral("webtunnel") << false;
        QTest::newRow("webtunnel, by lyrebird")
            << line("webtunnel") << QStringLiteral("lyrebird") << false;
        QTest::newRow("one of two")
            << line("snowflake") + line("obfs4") << QStringLiteral("snowflake") << true;
    }
    void ownBridgesNeedTheProgramsOfTheirTransports()
    {
        QFETCH(QString, lines);
        QFETCH(QString, programs);
        StandInSession session(profile);
        const OptionsModel options(session);
        Snapshot s;
        s.choices.bridgeChoice = BridgeChoice::custom;
        s.choices.customBridges = lines;
        const auto program = [&programs](const char *name) {
            return programs.contains(QLatin1String(name))
                ? std::optional(QStringLiteral("/usr/bin/") + QLatin1String(name))
                : std::nullopt;
        };
        s.transports.lyrebird = program("lyrebird");
        s.transports.snowflake = program("snowflake");
        s.transports.webtunnel = program("webtunnel");
        session.show(s);
        QTEST(options.needsDownload(), "needed");
        QCOMPARE(options.bridgeNoteIsWarning(), options.needsDownload());
    }

    void countsLinesThatAreNoBridges()
    {
        StandInSession session(profile);
        const OptionsModel options(session);
        QCOMPARE(options.bridgeWarning(QStringLiteral("192.0.2.1:443\n# note\n")), QString());
        QCOMPARE(options.bridgeWarning(QStringLiteral("nonsense")),
                 QStringLiteral("1 line not recognized (line 1)"));
        QCOMPARE(options.bridgeWarning(QStringLiteral("nonsense\nmore\n192.0.2.1:443")),
                 QStringLiteral("2 lines not recognized (lines 1, 2)"));
        QCOMPARE(options.bridgeWarning(QStringLiteral("192.0.2.1:443\na\nb\nc\nd\ne\nf\n")),
                 QStringLiteral("6 lines not recognized (lines 2, 3, 4, 5, 6, …)"));
    }

    void namesTheCharactersThatABridgeLineCannotHave()
    {
        StandInSession session(profile);
        const OptionsModel options(session);
        const QString reason = QStringLiteral("\nA bridge line can't contain #, \" or \\.");
        for (const char *line : {"192.0.2.1:443 #a", "192.0.2.1:443 \"a\"", "192.0.2.1:443 a\\"})
            QCOMPARE(
                options.bridgeWarning(QStringLiteral("192.0.2.1:1\n") + QString::fromLatin1(line)),
                QStringLiteral("1 line not recognized (line 2)") + reason);
        QVERIFY(!options.bridgeWarning(QStringLiteral("nonsense")).contains(reason));
    }

    void countsTheBridgesAndThoseThatAreTooMany()
    {
        StandInSession session(profile);
        const OptionsModel options(session);
        QCOMPARE(options.bridgeCount(QStringLiteral("# none\nnonsense")), QString());
        QCOMPARE(options.bridgeCount(QStringLiteral("192.0.2.1:443\nnonsense")),
                 QStringLiteral("1 bridge recognized"));
        QString text;
        for (int i = 1; i <= 100; ++i)
            text += QStringLiteral("192.0.2.1:%1\n").arg(i);
        QCOMPARE(options.bridgeCount(text), QStringLiteral("100 bridges recognized"));
        QCOMPARE(options.bridgeWarning(text), QString());
        text += QStringLiteral("192.0.2.2:1\n");
        QCOMPARE(options.bridgeCount(text), QStringLiteral("100 bridges recognized"));
        QCOMPARE(options.bridgeWarning(text),
                 QStringLiteral("At most 100 bridges can be used (line 101)"));
    }

    void findsTheBridgesInOtherText()
    {
        StandInSession session(profile);
        const OptionsModel options(session);
        const QString bridge = QStringLiteral("obfs4 192.0.2.1:443 cert=abc");
        const QString mail = QStringLiteral("> Bridge %1 iat-mode=0\n> Bye").arg(bridge);
        QCOMPARE(options.bridgeCount(mail), QStringLiteral("1 bridge recognized"));
        QCOMPARE(options.onlyBridges(mail), bridge + QStringLiteral(" iat-mode=0"));
        QCOMPARE(options.onlyBridges(bridge + QStringLiteral("\n# note")), QString());
        QCOMPARE(options.onlyBridges(QStringLiteral("nonsense")), QString());

        QTemporaryDir folder;
        const auto inFile = [&](const QString &name) {
            return options.bridgesInFile(QUrl::fromLocalFile(folder.filePath(name)));
        };
        QFile file(folder.filePath(QStringLiteral("mail")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(mail.toUtf8()) > 0);
        file.close();
        QCOMPARE(inFile(QStringLiteral("mail")), bridge + QStringLiteral(" iat-mode=0"));
        QCOMPARE(inFile(QStringLiteral("missing")), QString());
        QCOMPARE(inFile(QString()), QString()); // a folder
        // One that never ends is not opened.
        const QString fifo = folder.filePath(QStringLiteral("fifo"));
        QCOMPARE(mkfifo(qPrintable(fifo), 0600), 0);
        QCOMPARE(inFile(QStringLiteral("fifo")), QString());
        QCOMPARE(options.bridgesInFile(QUrl(QStringLiteral("https://a.example/mail"))), QString());
    }

    void showsTheApplicationsThatTheSessionHas()
    {
        StandInSession session(profile);
        OptionsModel options(session);
        QCOMPARE(options.applicationCount(), QStringLiteral("None"));
        const QString games = QStringLiteral("/usr/share/applications/games.desktop");
        session.addBypassApp(games);
        QCOMPARE(options.applications(), QStringList{games});
        QCOMPARE(options.applicationCount(), QStringLiteral("1"));
        QCOMPARE(options.applicationName(games), QStringLiteral("Games"));
        options.removeApplication(games);
        QVERIFY(options.applications().isEmpty());
    }

    void opensAroundTorOnlyInStrictMode()
    {
        StandInSession session(profile);
        OptionsModel options(session);
        Snapshot s;
        s.phase = ConnectionPhase::connected;
        s.activeMode = RoutingMode::proxy;
        session.show(s);
        QVERIFY(!options.canLaunchBypassed());
        s.activeMode = RoutingMode::strict;
        session.show(s);
        QVERIFY(options.canLaunchBypassed());
    }

    void showsWhatTheRunningSessionHas()
    {
        StandInSession session(profile);
        OptionsModel options(session);
        Snapshot s;
        s.choices.strictMode = true;
        s.activeMode = RoutingMode::proxy;
        s.phase = ConnectionPhase::connected;
        session.show(s);
        QVERIFY(!options.strictMode());
        s.activeMode = RoutingMode::strict;
        session.show(s);
        QVERIFY(options.strictMode());
        s.activeMode = RoutingMode::proxy; // a leftover session: the choice applies to the next one
        s.phase = ConnectionPhase::stale;
        session.show(s);
        QVERIFY(options.strictMode());
        s.phase = ConnectionPhase::disconnecting; // it is being ended
        session.show(s);
        QVERIFY(!options.strictMode());
    }

    // The ladder has led to other bridges than the chosen ones, or the choice was stored for the
    // next session.
    void showsTheBridgesOfTheRunningSession()
    {
        StandInSession session(profile);
        OptionsModel options(session);
        Snapshot s;
        s.transports.lyrebird = QStringLiteral("/usr/bin/lyrebird");
        s.transports.builtin = {
            {QStringLiteral("obfs4"), {QStringLiteral("obfs4 192.0.2.1:443 cert=a")}}};
        s.transports.source = QStringLiteral("Tor Browser");
        s.choices.bridgeChoice = BridgeChoice::off;
        s.activeBridge = BridgeChoice::obfs4;
        const QString note = QStringLiteral("Built-in bridges from Tor Browser");
        const QString chosen = QStringLiteral("Off");
        const QString used = QStringLiteral("obfs4 (built-in)");
        for (const auto &[phase, isUsed] : {std::pair{ConnectionPhase::connecting, false},
                                            {ConnectionPhase::connected, true},
                                            {ConnectionPhase::disconnecting, true},
                                            {ConnectionPhase::stale, false}}) {
            s.phase = phase;
            session.show(s);
            QCOMPARE(options.bridgeNames().at(options.bridgeIndex()), isUsed ? used : chosen);
            QCOMPARE(options.bridgeNote(), isUsed ? note : QString());
        }
        s.phase = ConnectionPhase::connected;
        s.activeBridge = BridgeChoice::custom;
        session.show(s);
        QVERIFY(options.customChosen());
        s.transports = {};
        s.choices.bridgeChoice = BridgeChoice::obfs4; // a session without bridges
        s.activeBridge.reset();
        session.show(s);
        QCOMPARE(options.bridgeNames().at(options.bridgeIndex()), chosen);
        QVERIFY(!options.needsDownload() && options.bridgeNote().isEmpty());
    }
};

VELDMARK_WINDOWED_TEST(OptionsModelTest)
#include "OptionsModelTest.moc"
