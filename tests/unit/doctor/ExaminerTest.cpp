#include "TestMachine.h"

#include "doctor/Examiner.h"
#include "support/StandIns.h"
#include "support/TestProgram.h"
#include "system/SettingsStore.h"

#include <QTest>

#include <algorithm>

#include <unistd.h>

using namespace veldmark;

class ExaminerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void asksTorForItsVersionAndNothingElse()
    {
        TestMachine m;
        SettingsStore settings(m.profile());
        ScriptedRunner processes;
        processes.answer = [](const ScriptedRunner::Call &call) {
            return ProcessResult{0,
                                 call.executable.endsWith(QStringLiteral("/tor"))
                                     ? QStringLiteral("Tor version 0.4.8.9.\n")
                                     : QString(),
                                 {}};
        };
        Examiner examiner(m.profile(), settings, processes);
        auto examining = examiner.examine();
        QTRY_VERIFY(examining.isReady());
        const Findings findings = QCoro::waitFor(std::move(examining));
        QCOMPARE(findings.front().text,
                 QStringLiteral("Tor 0.4.8.9 is installed: %1.").arg(m.at("/usr/bin/tor")));
        for (const ScriptedRunner::Call &call : processes.calls) {
            if (call.executable.endsWith(QStringLiteral("/tor")))
                QCOMPARE(call.arguments, QStringList{QStringLiteral("--version")});
            else // as root
                QCOMPARE(call.arguments,
                         (QStringList{QStringLiteral("list"), QStringLiteral("tables")}));
        }
        QVERIFY(!processes.calls.empty());
    }

    void rootDoesNotRunATorThatOthersCanChange()
    {
        TestMachine m;
        SettingsStore settings(m.profile());
        ScriptedRunner processes;
        processes.answer = [](const ScriptedRunner::Call &) {
            return ProcessResult{0, QStringLiteral("Tor version 0.4.8.9.\n"), {}};
        };
        const QString tor = m.at("/usr/bin/tor");
        QVERIFY(QFile::setPermissions(tor, QFile::permissions(tor) | QFile::WriteGroup));
        Examiner examiner(m.profile(), settings, processes);
        auto examining = examiner.examine();
        QTRY_VERIFY(examining.isReady());
        const Finding finding = QCoro::waitFor(std::move(examining)).front();
        const bool isAsked = std::any_of(
            processes.calls.begin(), processes.calls.end(),
            [&tor](const ScriptedRunner::Call &c) { return c.executable == tor; });
        QCOMPARE(isAsked, ::geteuid() != 0);
        if (isAsked)
            return;
        QVERIFY(finding.level == Finding::Level::unknown);
        QCOMPARE(
            finding.text,
            QStringLiteral(
                "Users other than root can change %1, so root doesn't run it to ask for its version.")
                .arg(tor));
    }

    void readsTheSettings()
    {
        TestMachine m;
        SettingsStore settings(m.profile());
        settings.setString(QStringLiteral("customTorPath"), QStringLiteral("/opt/none/tor"));
        settings.setString(QStringLiteral("bridgeChoice"), QStringLiteral("obfs4"));
        settings.setString(QStringLiteral("exitCountry"), QStringLiteral("DE"));
        ScriptedRunner processes;
        Examiner examiner(m.profile(), settings, processes);
        auto examining = examiner.examine();
        QTRY_VERIFY(examining.isReady());
        QStringList texts;
        for (const Finding &finding : QCoro::waitFor(std::move(examining)))
            texts << finding.text.english();
        QVERIFY2(texts.join(u'\n').contains(
                     QStringLiteral("/opt/none/tor, is not an executable program")),
                 qPrintable(texts.join(u'\n')));
        QVERIFY2(texts.join(u'\n').contains(QStringLiteral("The chosen bridges can't be used")),
                 qPrintable(texts.join(u'\n')));
        QVERIFY2(texts.contains(QStringLiteral("Invalid exit country.")),
                 qPrintable(texts.join(u'\n')));
    }

    void aTorThatFailsHasNoVersion()
    {
        TestMachine m;
        SettingsStore settings(m.profile());
        ScriptedRunner processes;
        processes.answer = [](const ScriptedRunner::Call &) {
            return ProcessResult{1, QStringLiteral("Tor version 0.4.8.9.\n"),
                                 QStringLiteral("no\nway")};
        };
        Examiner examiner(m.profile(), settings, processes);
        auto examining = examiner.examine();
        QTRY_VERIFY(examining.isReady());
        QVERIFY(QCoro::waitFor(std::move(examining)).front().level == Finding::Level::problem);
    }

    void asRootItAsksNftWhetherItWorks_data()
    {
        QTest::addColumn<int>("status"); // below 0: it cannot be started
        QTest::addColumn<QString>("complaint");
        QTest::addColumn<QString>("told");
        QTest::newRow("it works") << 0 << QString()
                                  << QStringLiteral(
                                         "The system's firewall, nftables, can be used.");
        QTest::newRow("it says what is wrong")
            << 1 << QStringLiteral("Operation not supported\nand more\n")
            << QStringLiteral("The system's firewall can't be used: Operation not supported");
        QTest::newRow("it says nothing")
            << 1 << QString() << QStringLiteral("The system's firewall can't be used: nft fails.");
        QTest::newRow("it gives no answer")
            << -1 << QString()
            << QStringLiteral("The system's firewall can't be used: nft doesn't answer.");
    }

    void asRootItAsksNftWhetherItWorks()
    {
        QFETCH(int, status);
        QFETCH(QString, complaint);
        QFETCH(QString, told);
        TestMachine m;
        SettingsStore settings(m.profile());
        ScriptedRunner processes;
        processes.answer =
            [&](const ScriptedRunner::Call &call) -> Result<ProcessResult, StartError> {
            if (!call.executable.endsWith(QStringLiteral("/nft")))
                return ProcessResult{0, QStringLiteral("Tor version 0.4.8.9.\n"), {}};
            if (status < 0)
                return Failure(StartError(Text(QStringLiteral("No such file or directory"))));
            return ProcessResult{status, {}, complaint};
        };
        Examiner examiner(m.profile(), settings, processes, 0);
        auto examining = examiner.examine();
        QTRY_VERIFY(examining.isReady());
        QStringList texts;
        for (const Finding &finding : QCoro::waitFor(std::move(examining))) {
            if (finding.name != QStringLiteral("nftables"))
                continue;
            texts << finding.text.english();
            QCOMPARE(finding.level == Finding::Level::problem, status != 0);
        }
        QCOMPARE(texts, QStringList(told));
    }

    void anOrdinaryUserDoesNotAskNft()
    {
        TestMachine m;
        SettingsStore settings(m.profile());
        ScriptedRunner processes;
        Examiner examiner(m.profile(), settings, processes, TestMachine::alice);
        auto examining = examiner.examine();
        QTRY_VERIFY(examining.isReady());
        QVERIFY(!QCoro::waitFor(std::move(examining)).empty());
        QVERIFY(
            std::none_of(processes.calls.cbegin(), processes.calls.cend(), [](const auto &call) {
                return call.executable.endsWith(QStringLiteral("/nft"));
            }));
    }

    void goesWhileItIsWaitedFor()
    {
        TestMachine m;
        SettingsStore settings(m.profile());
        ScriptedRunner processes;
        processes.hold = [](const ScriptedRunner::Call &) { return true; };
        auto examiner = std::make_unique<Examiner>(m.profile(), settings, processes);
        auto examining = examiner->examine();
        QTRY_COMPARE(processes.held(), std::size_t(1));
        examiner.reset();
        processes.release();
        QTRY_VERIFY(examining.isReady());
        QVERIFY(QCoro::waitFor(std::move(examining)).empty());
    }
};

VELDMARK_TEST(ExaminerTest)
#include "ExaminerTest.moc"
