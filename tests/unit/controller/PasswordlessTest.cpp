#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QTest>

#include <pwd.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace veldmark;
using System = Workbench::System;

class PasswordlessTest : public QObject {
    Q_OBJECT
private:
    static void install(const Workbench &bench, const QByteArray &helper = "the helper")
    {
        bench.writeFile(bench.profile.installedHelper, helper);
        bench.writeFile(bench.profile.sudoersRule);
    }

    // The helper does what it is asked.
    static void obey(Workbench &bench)
    {
        const auto answer = bench.processes.answer;
        bench.processes.answer = [&bench, answer](const ScriptedRunner::Call &call) {
            const auto result = answer(call);
            if (result && result->status == 0
                && call.arguments.join(u' ').contains(u"uninstall-privileged"_s)) {
                QFile::remove(bench.profile.installedHelper);
                QFile::remove(bench.profile.sudoersRule);
            } else if (result && result->status == 0
                       && call.arguments.join(u' ').contains(u"install-privileged"_s)) {
                install(bench);
            }
            return result;
        };
    }

private Q_SLOTS:
    void setsItUp_data() { Workbench::bothSystems(); }
    void setsItUp()
    {
        QFETCH(System, system);
        Workbench bench(system);
        obey(bench);
        QVERIFY(!bench.controller().passwordlessInstalled());
        const auto installing = bench.controller().installPasswordless();
        QVERIFY(Workbench::finished(installing));
        QVERIFY(bench.controller().passwordlessInstalled());
        QVERIFY(!bench.controller().startupError());
        QCOMPARE(bench.processes.calls.back().executable, bench.profile.promptProgram);
        QCOMPARE(bench.lastHelperRun(u"install-privileged"_s),
                 QStringList({u"install-privileged"_s, u"--user"_s,
                              QString::fromLocal8Bit(getpwuid(geteuid())->pw_name), u"--launch"_s,
                              bench.profile.places.applicationDirectory + u"/veldmark-launch"_s}));
    }

    void alwaysAsksForSettingItUp()
    {
        Workbench bench;
        install(bench); // although no password is needed
        const auto installing = bench.controller().installPasswordless();
        QVERIFY(Workbench::finished(installing));
        QCOMPARE(bench.processes.calls.back().executable, bench.profile.promptProgram);
    }

    void namesNoLauncherWhereTheProgramIsUnknown()
    {
        Workbench bench;
        bench.profile.places.applicationDirectory.clear();
        const auto installing = bench.controller().installPasswordless();
        QVERIFY(Workbench::finished(installing));
        QCOMPARE(bench.lastHelperRun(u"install-privileged"_s).size(), 3);
    }

    void saysWhenNothingCameOfIt()
    {
        Workbench bench;
        const auto installing = bench.controller().installPasswordless();
        QVERIFY(Workbench::finished(installing));
        QCOMPARE(bench.controller().startupError().value(),
                 u"Setup ran but the helper wasn't installed. Try again."_s);
        obey(bench);
        const auto again = bench.controller().installPasswordless();
        QVERIFY(Workbench::finished(again));
        QVERIFY(!bench.controller().startupError());
    }

    void saysWhyItCouldNotBeSetUp_data() { Workbench::bothSystems(); }
    void saysWhyItCouldNotBeSetUp()
    {
        QFETCH(System, system);
        Workbench bench(system);
        bench.failHelper(u"install-privileged"_s, u"visudo refused the rule."_s);
        const auto installing = bench.controller().installPasswordless();
        QVERIFY(Workbench::finished(installing));
        QCOMPARE(bench.controller().startupError().value(),
                 u"Couldn't set up passwordless mode: visudo refused the rule."_s);
        QVERIFY(!bench.controller().errorMessage()); // shown with the setting, not as the banner
        bench.cancelPrompt(u"install-privileged"_s);
        const auto dismissed = bench.controller().installPasswordless();
        QVERIFY(Workbench::finished(dismissed));
        QVERIFY(!bench.controller().startupError()); // the user's own choice
    }

    void takesItAwayWithoutAPrompt_data() { Workbench::bothSystems(); }
    void takesItAwayWithoutAPrompt()
    {
        QFETCH(System, system);
        Workbench bench(system);
        install(bench);
        bench.restart();
        QVERIFY(bench.controller().passwordlessInstalled());
        obey(bench);
        const auto removing = bench.controller().removePasswordless();
        QVERIFY(Workbench::finished(removing));
        QVERIFY(!bench.controller().passwordlessInstalled());
        QVERIFY(!bench.controller().startupError());
        QCOMPARE(bench.processes.calls.back().executable, bench.profile.sudo);
        QCOMPARE(bench.lastHelperRun(u"uninstall-privileged"_s),
                 QStringList(u"uninstall-privileged"_s));
    }

    void saysWhyItCouldNotBeTakenAway()
    {
        Workbench bench;
        install(bench);
        bench.restart();
        bench.failHelper(u"uninstall-privileged"_s, u"Read-only."_s);
        const auto removing = bench.controller().removePasswordless();
        QVERIFY(Workbench::finished(removing));
        QVERIFY(bench.controller().passwordlessInstalled());
        QCOMPARE(bench.controller().startupError().value(),
                 u"Couldn't remove passwordless mode: Read-only."_s);
    }

    void aRuleThatDoesNotMatchFallsBackToThePrompt_data() { Workbench::bothSystems(); }
    void aRuleThatDoesNotMatchFallsBackToThePrompt()
    {
        QFETCH(System, system);
        Workbench bench(system);
        install(bench);
        const auto answer = bench.processes.answer;
        bench.processes.answer =
            [&](const ScriptedRunner::Call &call) -> Result<ProcessResult, StartError> {
            if (call.executable == bench.profile.sudo)
                return ProcessResult{1, {}, u"sudo: a Password is required\n"_s};
            return answer(call);
        };
        QVERIFY(bench.connect());
        QCOMPARE(bench.processes.calls.back().executable, bench.profile.promptProgram);
    }

    void aMissingRuleMeansAPrompt()
    {
        Workbench bench;
        bench.writeFile(bench.profile.installedHelper, "the helper");
        bench.restart();
        QVERIFY(!bench.controller().passwordlessInstalled());
        QVERIFY(bench.connect());
        QCOMPARE(bench.processes.calls.back().executable, bench.profile.promptProgram);
    }

    void renewsAnOutdatedHelperAtStartUp_data()
    {
        QTest::addColumn<bool>("installed");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("renewed");
        QTest::newRow("not installed") << false << QByteArray() << false;
        QTest::newRow("the same") << true << QByteArray("the helper") << false;
        QTest::newRow("another") << true << QByteArray("an old helper") << true;
    }

    void renewsAnOutdatedHelperAtStartUp()
    {
        QFETCH(bool, installed);
        QFETCH(QByteArray, content);
        QFETCH(bool, renewed);
        Workbench bench;
        if (installed)
            install(bench, content);
        const auto updating = bench.controller().updatePrivilegedHelper();
        QVERIFY(Workbench::finished(updating));
        QCOMPARE(bench.helperRunCount(u"install-privileged"_s), renewed ? 1 : 0);
    }

    void aSecondPressWhileThePromptIsUpDoesNothing()
    {
        Workbench bench;
        TorController &c = bench.controller();
        obey(bench);
        bench.hold(u"install-privileged"_s);
        const auto first = c.installPasswordless();
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        const auto second = c.installPasswordless();
        const auto other = c.removePasswordless();
        QVERIFY(second.isReady() && other.isReady());
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(first));
        QVERIFY(c.passwordlessInstalled());
        QCOMPARE(bench.helperRunCount(u"install-privileged"_s), 1);
        QCOMPARE(bench.helperRunCount(u"uninstall-privileged"_s), 0);
        bench.hold(u"uninstall-privileged"_s);
        const auto removing = c.removePasswordless(); // the next press counts again
        QVERIFY(until([&] { return bench.processes.held() == 1; }));
        QVERIFY(c.removePasswordless().isReady());
        bench.processes.hold = nullptr;
        bench.processes.release();
        QVERIFY(Workbench::finished(removing));
        QCOMPARE(bench.helperRunCount(u"uninstall-privileged"_s), 1);
        QVERIFY(!c.passwordlessInstalled());
    }
};

VELDMARK_TEST(PasswordlessTest)
#include "PasswordlessTest.moc"
