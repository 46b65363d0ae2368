#include "bridges/PluggableTransports.h"
#include "bridges/TransportMemory.h"

#include "ProgramTree.h"
#include "ZipArchive.h"
#include "support/TestProgram.h"

#include <QSet>
#include <QTest>

using namespace veldmark;

namespace {

const QByteArray obfs4Configuration
    = R"({"bridges": {"obfs4": ["Bridge obfs4 192.0.2.1:443 AA", "obfs4 example.org:1"]}})";
const QStringList obfs4Lines = {QStringLiteral("obfs4 192.0.2.1:443 AA")};
const QByteArray preferencesMember = "defaults/preferences/000-tor-browser.js";
const QByteArray preferences
    = "pref(\"extensions.torlauncher.default_bridge.obfs4.1\", \"obfs4 192.0.2.7:443 CC\");\n"
      "pref(\"extensions.torlauncher.default_bridge.plain.1\", \"192.0.2.8:443 DD\");\n"
      "pref(\"extensions.torlauncher.default_bridge.bad.1\", \"obfs4 example.org:443 DD\");\n";
const QStringList preferencesLines = {QStringLiteral("obfs4 192.0.2.7:443 CC")};

const QByteArray servesSnowflake
    = "#!/bin/sh\necho CMETHOD snowflake socks5 127.0.0.1:1\necho CMETHODS DONE\n";

// One system's paths below a temporary folder.
struct System {
    explicit System(bool isMac)
        : profile(isMac ? PlatformProfile::macos(Places::below(tree.root()))
                        : PlatformProfile::linux(Places::below(tree.root())))
    {
        QDir().mkpath(QFileInfo(profile.unzip).path());
        QFile::link(QStringLiteral("/usr/bin/unzip"), profile.unzip);
    }

    QString browser(const QString &name) const
    {
        return profile.torBrowserRoots.back().path + u'/' + name;
    }
    QString bundle(const QString &name) const { return profile.bundleDirectory + u'/' + name; }
    QString folder(int index, const QString &name) const
    {
        return profile.transportDirectories[index] + u'/' + name;
    }
    PluggableTransports locate() const { return PluggableTransports::locate(profile); }

    ProgramTree tree;
    PlatformProfile profile;
};

} // namespace

class PluggableTransportsTest : public QObject {
    Q_OBJECT

    static void bothSystems()
    {
        QTest::addColumn<bool>("isMac");
        QTest::newRow("linux") << false;
        QTest::newRow("macos") << true;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(QFile::exists(QStringLiteral("/usr/bin/unzip")), "needs the package unzip");
    }

    void aFreshValueIsEmpty()
    {
        const PluggableTransports fresh;
        QVERIFY(!fresh.lyrebird && !fresh.snowflake && !fresh.webtunnel);
        QVERIFY(fresh.builtin.isEmpty() && fresh.source.isEmpty());
        QCOMPARE(PluggableTransports::lyrebirdTransports(),
                 (QSet<QString>{QStringLiteral("obfs4"), QStringLiteral("meek_lite"),
                                QStringLiteral("webtunnel"), QStringLiteral("obfs3"),
                                QStringLiteral("scramblesuit")}));
    }

    void findsNothingOnAnEmptyComputer_data() { bothSystems(); }
    void findsNothingOnAnEmptyComputer()
    {
        QFETCH(bool, isMac);
        const System system(isMac);
        QCOMPARE(system.locate(), PluggableTransports());
    }

    void takesProgramsFromTheProgramFolders_data() { bothSystems(); }
    void takesProgramsFromTheProgramFolders()
    {
        QFETCH(bool, isMac);
        const System system(isMac);
        // First the second folder's obfs4proxy, then programs that come earlier in the order of
        // search.
        const QString last = system.tree.program(system.folder(1, QStringLiteral("obfs4proxy")));
        PluggableTransports expected;
        expected.lyrebird = last;
        QCOMPARE(system.locate(), expected);
        for (const auto &[index, name] :
             {std::pair(1, "lyrebird"), std::pair(0, "obfs4proxy"), std::pair(0, "lyrebird")}) {
            expected.lyrebird = system.tree.program(system.folder(index, QLatin1String(name)));
            QCOMPARE(system.locate(), expected);
        }
        expected.snowflake = system.tree.program(
            system.folder(1, QStringLiteral("snowflake-client")));
        QCOMPARE(system.locate(), expected);
        expected.snowflake = system.tree.program(
            system.folder(0, QStringLiteral("snowflake-client")));
        QCOMPARE(system.locate(), expected);
        // webtunnel-client is taken from bundles only.
        system.tree.program(system.folder(0, QStringLiteral("webtunnel-client")));
        QCOMPARE(system.locate(), expected);
    }

    void theBundlesLyrebirdAndTheBrowsersOtherProgramsWin_data() { bothSystems(); }
    void theBundlesLyrebirdAndTheBrowsersOtherProgramsWin()
    {
        QFETCH(bool, isMac);
        const System system(isMac);
        for (const char *name : {"lyrebird", "snowflake-client", "webtunnel-client"}) {
            system.tree.program(
                system.browser(QStringLiteral("Tor/.hidden/") + QLatin1String(name)));
            system.tree.program(
                system.bundle(QStringLiteral("tor/pluggable_transports/") + QLatin1String(name)));
            system.tree.program(system.folder(0, QLatin1String(name)));
        }
        const PluggableTransports found = system.locate();
        QCOMPARE(*found.lyrebird,
                 system.bundle(QStringLiteral("tor/pluggable_transports/lyrebird")));
        QCOMPARE(*found.snowflake, system.browser(QStringLiteral("Tor/.hidden/snowflake-client")));
        QCOMPARE(*found.webtunnel, system.browser(QStringLiteral("Tor/.hidden/webtunnel-client")));
    }

    void withinOnePlaceTheOrderOfPathsDecides()
    {
        const System system(false);
        for (const char *name : {"b", "a", "c"}) {
            system.tree.program(system.bundle(QLatin1String(name) + QStringLiteral("/lyrebird")));
            system.tree.program(
                system.bundle(QLatin1String(name) + QStringLiteral("/snowflake-client")));
        }
        QCOMPARE(*system.locate().lyrebird, system.bundle(QStringLiteral("c/lyrebird")));
        QCOMPARE(*system.locate().snowflake, system.bundle(QStringLiteral("a/snowflake-client")));
    }

    void ignoresWhatIsNoProgram()
    {
        const System system(false);
        system.tree.file(system.bundle(QStringLiteral("a/lyrebird")), "not executable");
        QDir().mkpath(system.bundle(QStringLiteral("b/lyrebird")));
        QFile::link(QStringLiteral("/nowhere"), system.bundle(QStringLiteral("lyrebird")));
        system.tree.program(system.bundle(QStringLiteral("a/lyrebird.exe")));
        QCOMPARE(system.locate(), PluggableTransports());
        const QString linked = system.bundle(QStringLiteral("d/lyrebird"));
        QDir().mkpath(QFileInfo(linked).path());
        QFile::link(system.tree.program(QStringLiteral("elsewhere")), linked);
        QCOMPARE(*system.locate().lyrebird, linked);
    }

    void doesNotFollowLinksToFolders()
    {
        const System system(false);
        system.tree.program(QStringLiteral("other/lyrebird"));
        QDir().mkpath(system.bundle(QString()));
        QFile::link(system.tree.path(QStringLiteral("other")),
                    system.bundle(QStringLiteral("other")));
        QFile::link(system.bundle(QString()), system.bundle(QStringLiteral("round")));
        QCOMPARE(system.locate(), PluggableTransports());
    }

    void readsTheBrowsersConfigurationBeforeItsArchives_data() { bothSystems(); }
    void readsTheBrowsersConfigurationBeforeItsArchives()
    {
        QFETCH(bool, isMac);
        const System system(isMac);
        // A stand-in for unzip that records its run.
        QFile::remove(system.profile.unzip);
        system.tree.program(system.profile.unzip,
                            "#!/bin/sh\n/usr/bin/touch "
                                + system.tree.path(QStringLiteral("ran")).toUtf8()
                                + "\nexec /usr/bin/unzip \"$@\"\n");
        system.tree.file(system.browser(QStringLiteral("a/omni.ja")),
                         zipArchive({{preferencesMember, preferences}}));
        PluggableTransports found = system.locate();
        QVERIFY(QFile::remove(system.tree.path(QStringLiteral("ran"))));
        QCOMPARE(found.builtin.value(QStringLiteral("obfs4")), preferencesLines);
        QCOMPARE(found.source, QStringLiteral("Tor Browser"));

        system.tree.file(system.browser(QStringLiteral("z/pt_config.json")), obfs4Configuration);
        found = system.locate();
        QVERIFY(!QFile::exists(system.tree.path(QStringLiteral("ran"))));
        QCOMPARE(found.builtin.value(QStringLiteral("obfs4")), obfs4Lines);
        QCOMPARE(found.source, QStringLiteral("Tor Browser"));
    }

    void readsEveryKindOfArchive_data()
    {
        QTest::addColumn<QByteArray>("archive");
        const QByteArray filler = QByteArray("0123456789").repeated(100'000);
        QTest::newRow("stored") << zipArchive(
            {{"other", filler}, {preferencesMember, preferences}});
        QTest::newRow("deflated") << zipArchive(
            {{"other", filler}, {preferencesMember, preferences, true}});
        QTest::newRow("directory in front") << zipArchive(
            {{"other", filler}, {preferencesMember, preferences, true}}, ZipLayout::directoryFirst);
        QTest::newRow("broken UTF-8")
            << zipArchive({{preferencesMember, "// \xff\xfe\n" + preferences}});
    }

    void readsEveryKindOfArchive()
    {
        QFETCH(QByteArray, archive);
        const System system(false);
        system.tree.file(system.browser(QStringLiteral("odd [name] *'\"$/omni.ja")), archive);
        QCOMPARE(system.locate().builtin,
                 (QMap<QString, QStringList>{{QStringLiteral("obfs4"), preferencesLines}}));
    }

    void brokenFilesYieldNothing()
    {
        const System system(false);
        system.tree.file(system.browser(QStringLiteral("1/pt_config.json")),
                         "{\"bridges\": {\"obfs4\": 1}}");
        system.tree.file(system.browser(QStringLiteral("2/pt_config.json")), QByteArray());
        system.tree.file(system.browser(QStringLiteral("1/omni.ja")), "PK\3\4 not a ZIP archive");
        system.tree.file(system.browser(QStringLiteral("2/omni.ja")), zipArchive({{"other", "x"}}));
        QDir().mkpath(system.browser(QStringLiteral("3/omni.ja")));
        QDir().mkpath(system.browser(QStringLiteral("3/pt_config.json")));
        QCOMPARE(system.locate(), PluggableTransports());
        // Files without bridges do not hide those with bridges.
        system.tree.file(system.browser(QStringLiteral("4/omni.ja")),
                         zipArchive({{preferencesMember, preferences}}));
        QCOMPARE(system.locate().source, QStringLiteral("Tor Browser"));
        system.tree.file(system.browser(QStringLiteral("4/pt_config.json")), obfs4Configuration);
        QCOMPARE(system.locate().builtin.value(QStringLiteral("obfs4")), obfs4Lines);
        QCOMPARE(QFile::remove(system.profile.unzip), true);
        QCOMPARE(system.locate().builtin.value(QStringLiteral("obfs4")), obfs4Lines);
        QFile::remove(system.browser(QStringLiteral("4/pt_config.json")));
        QCOMPARE(system.locate(), PluggableTransports());
    }

    void filesThatAreTooLongYieldNothing()
    {
        constexpr qsizetype largest = 16 * 1024 * 1024;
        for (const qsizetype size : {largest, largest + 1}) {
            const System system(false);
            const QString archive = system.browser(QStringLiteral("1/omni.ja"));
            system.tree.file(
                archive, zipArchive({{preferencesMember, preferences.leftJustified(size), true}}));
            QCOMPARE(system.locate().builtin.isEmpty(), size > largest);
            QVERIFY(QFile::remove(archive));
            system.tree.file(system.browser(QStringLiteral("1/pt_config.json")),
                             obfs4Configuration.leftJustified(size));
            QCOMPARE(system.locate().builtin.isEmpty(), size > largest);
        }
    }

    void namesTheBundleWithItsVersion_data() { bothSystems(); }
    void namesTheBundleWithItsVersion()
    {
        QFETCH(bool, isMac);
        const System system(isMac);
        system.tree.file(system.bundle(QStringLiteral("pt_config.json")), obfs4Configuration);
        QCOMPARE(system.locate().source, QStringLiteral("Tor Expert Bundle"));
        QCOMPARE(PluggableTransports::locate(system.profile, QString()).source,
                 QStringLiteral("Tor Expert Bundle"));
        QCOMPARE(PluggableTransports::locate(system.profile, QStringLiteral("14.0.4")).source,
                 QStringLiteral("Tor Expert Bundle 14.0.4"));
        // The browser comes first, and its label has no version.
        system.tree.file(system.browser(QStringLiteral("pt_config.json")),
                         R"({"bridges": {"snowflake": ["snowflake 192.0.2.3:80 BB"]}})");
        const PluggableTransports found = PluggableTransports::locate(system.profile,
                                                                      QStringLiteral("14.0.4"));
        QCOMPARE(found.source, QStringLiteral("Tor Browser"));
        QCOMPARE(found.builtin.keys(), QStringList{QStringLiteral("snowflake")});
    }

    void aLyrebirdThatServesSnowflakeIsItsClient_data()
    {
        QTest::addColumn<bool>("isMac");
        QTest::addColumn<QByteArray>("configuration");
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<bool>("serves");
        const QByteArray says
            = R"({"pluggableTransports": {"lyrebird": "ClientTransportPlugin meek_lite,obfs4,snowflake,webtunnel exec ${pt_path}lyrebird"}})";
        const QByteArray saysNot
            = R"({"pluggableTransports": {"lyrebird": "ClientTransportPlugin obfs4 exec ${pt_path}lyrebird", "s": "ClientTransportPlugin snowflake exec ${pt_path}snowflake-client"}})";
        const QByteArray dead = "#!/bin/sh\nexit 1\n";
        for (const bool isMac : {false, true}) {
            const char *name = isMac ? "macos" : "linux";
            QTest::addRow("%s: the plugin line says so", name) << isMac << says << dead << true;
            QTest::addRow("%s: it says so itself", name)
                << isMac << saysNot << servesSnowflake << true;
            QTest::addRow("%s: no configuration", name)
                << isMac << QByteArray("{}") << servesSnowflake << true;
            QTest::addRow("%s: nobody says so", name) << isMac << saysNot << dead << false;
        }
    }

    void aLyrebirdThatServesSnowflakeIsItsClient()
    {
        QFETCH(bool, isMac);
        QFETCH(QByteArray, configuration);
        QFETCH(QByteArray, program);
        QFETCH(bool, serves);
        const System system(isMac);
        const QString lyrebird = system.tree.program(system.bundle(QStringLiteral("pt/lyrebird")),
                                                     program);
        system.tree.file(system.bundle(QStringLiteral("pt/pt_config.json")), configuration);
        QCOMPARE(system.locate().snowflake, serves ? std::optional(lyrebird) : std::nullopt);
        // snowflake-client itself is preferred, in any folder.
        const QString own = system.tree.program(
            system.folder(1, QStringLiteral("snowflake-client")));
        QCOMPARE(*system.locate().snowflake, own);
    }

    void aPluginLineSpeaksOnlyForTheLyrebirdOfItsPlace()
    {
        const System system(false);
        system.tree.file(
            system.browser(QStringLiteral("pt_config.json")),
            R"({"pluggableTransports": {"lyrebird": "ClientTransportPlugin snowflake exec ${pt_path}lyrebird"}})");
        system.tree.program(system.browser(QStringLiteral("lyrebird")));
        QVERIFY(system.locate().snowflake);
        system.tree.program(system.bundle(QStringLiteral("lyrebird")));
        QVERIFY(!system.locate().snowflake);
    }

    void aSnowflakeClientIsNotAskedForLyrebirdToRun()
    {
        const System system(false);
        const QString ran = system.tree.path(QStringLiteral("ran"));
        system.tree.program(system.bundle(QStringLiteral("lyrebird")),
                            "#!/bin/sh\n/usr/bin/touch " + ran.toUtf8() + "\n");
        system.locate();
        QVERIFY(QFile::remove(ran));
        system.tree.program(system.bundle(QStringLiteral("snowflake-client")));
        system.locate();
        QVERIFY(!QFile::exists(ran));
    }

    void whatAProgramHasAnsweredIsRememberedWhileItIsTheSame()
    {
        const System system(false);
        const QString ran = system.tree.path(QStringLiteral("ran"));
        const QByteArray counting = "#!/bin/sh\necho x >>" + ran.toUtf8()
            + "\necho CMETHOD snowflake socks5 127.0.0.1:1\necho CMETHODS DONE\n";
        const QString lyrebird = system.tree.program(system.bundle(QStringLiteral("lyrebird")),
                                                     counting);
        TransportMemory memory;
        const auto locate = [&](bool mayAsk) {
            return PluggableTransports::locate(system.profile, std::nullopt, {}, &memory, mayAsk);
        };
        const auto asked = [&] { return system.tree.content(ran).count('x'); };
        QVERIFY(!locate(false).snowflake); // not known yet
        QVERIFY(!QFile::exists(ran));
        QCOMPARE(locate(true).snowflake, std::optional(lyrebird));
        QCOMPARE(asked(), 1);
        QCOMPARE(locate(true).snowflake, std::optional(lyrebird));
        QCOMPARE(locate(false).snowflake, std::optional(lyrebird));
        QCOMPARE(asked(), 1);
        // A newer program in its place, which no longer serves it.
        QVERIFY(QFile::remove(lyrebird));
        system.tree.program(lyrebird,
                            "#!/bin/sh\necho x >>" + ran.toUtf8() + "\necho CMETHODS DONE\n");
        QVERIFY(!locate(false).snowflake);
        QCOMPARE(asked(), 1);
        QVERIFY(!locate(true).snowflake);
        QVERIFY(!locate(true).snowflake);
        QCOMPARE(asked(), 2);
        QVERIFY(QFile::remove(lyrebird));
        QVERIFY(!locate(true).lyrebird);
    }

    void aProgramThatDidNotAnswerIsAskedAgain()
    {
        const System system(false);
        const QString ran = system.tree.path(QStringLiteral("ran"));
        system.tree.program(system.bundle(QStringLiteral("lyrebird")),
                            "#!/bin/sh\necho x >>" + ran.toUtf8() + "\nexit 1\n");
        TransportMemory memory;
        for (int times = 1; times <= 2; ++times) {
            QVERIFY(
                !PluggableTransports::locate(system.profile, std::nullopt, {}, &memory).snowflake);
            QCOMPARE(system.tree.content(ran).count('x'), times);
        }
    }

    void theDistributionsProgramsAreFound()
    {
        const System system(false);
        PlatformProfile profile = system.profile;
        profile.transportDirectories = {QStringLiteral("/usr/bin"),
                                        QStringLiteral("/usr/local/bin")};
        QVERIFY2(QFile::exists(QStringLiteral("/usr/bin/obfs4proxy")),
                 "needs the package obfs4proxy");
        QVERIFY2(QFile::exists(QStringLiteral("/usr/bin/snowflake-client")),
                 "needs the package snowflake-client");
        QCOMPARE(*PluggableTransports::locate(profile).lyrebird,
                 QStringLiteral("/usr/bin/obfs4proxy"));
        QCOMPARE(*PluggableTransports::locate(profile).snowflake,
                 QStringLiteral("/usr/bin/snowflake-client"));
    }

    void findsItsWayThroughManyFiles()
    {
        const System system(false);
        for (int folder = 0; folder < 120; ++folder) {
            for (int file = 0; file < 100; ++file)
                system.tree.file(system.browser(QStringLiteral("d%1/e/f%2").arg(folder).arg(file)),
                                 QByteArray());
        }
        const QString lyrebird = system.tree.program(
            system.browser(QStringLiteral("d60/e/lyrebird")));
        system.tree.file(
            system.browser(QStringLiteral("d70/omni.ja")),
            zipArchive({{"big", QByteArray(50'000'000, 'x')}, {preferencesMember, preferences}}));
        const PluggableTransports found = system.locate();
        QCOMPARE(*found.lyrebird, lyrebird);
        QCOMPARE(found.builtin.value(QStringLiteral("obfs4")), preferencesLines);
    }

    void meekBridgesAreFoundUnderAnyOfTheirNames()
    {
        const QString line = QStringLiteral("meek_lite 192.0.2.2:80 url=https://a.example/");
        const QString another = QStringLiteral("meek_lite 192.0.2.3:80 url=https://b.example/");
        PluggableTransports found;
        found.builtin = {{QStringLiteral("meek-azure"), {line}}};
        QCOMPARE(*found.builtinLines(BridgeChoice::meek), QStringList{line});
        // Lines of another transport under such a name are no meek_lite bridges.
        found.builtin.insert(QStringLiteral("meek"), {QStringLiteral("meek 192.0.2.9:80")});
        QCOMPARE(*found.builtinLines(BridgeChoice::meek), QStringList{line});
        found.builtin.insert(QStringLiteral("meek"),
                             {QStringLiteral("meek 192.0.2.9:80"), another});
        QCOMPARE(*found.builtinLines(BridgeChoice::meek), QStringList{another});
        found.builtin.insert(QStringLiteral("meek_lite"), {line, line});
        QCOMPARE(*found.builtinLines(BridgeChoice::meek), QStringList({line, line}));
    }

    void saysWhereBuiltInBridgesComeFrom_data()
    {
        QTest::addColumn<QString>("raw");
        QTest::addColumn<QString>("name");
        QTest::newRow("obfs4") << "obfs4"
                               << "obfs4";
        QTest::newRow("snowflake") << "snowflake"
                                   << "Snowflake";
        QTest::newRow("meek") << "meek"
                              << "meek";
    }

    void saysWhereBuiltInBridgesComeFrom()
    {
        QFETCH(QString, raw);
        QFETCH(QString, name);
        PluggableTransports found;
        found.builtin = {{QStringLiteral("webtunnel"), {QStringLiteral("webtunnel 192.0.2.1:1")}},
                         {raw, {}}};
        const auto lines = found.builtinLines(*bridgeChoiceFromRawValue(raw));
        QVERIFY(!lines);
        QCOMPARE(
            lines.error().description(),
            QStringLiteral(
                "Built-in %1 bridges come from Tor Browser. Click Download next to Bridges, install Tor "
                "Browser, or paste your own under Bridges → Custom….")
                .arg(name));
    }
};

VELDMARK_TEST(PluggableTransportsTest)
#include "PluggableTransportsTest.moc"
