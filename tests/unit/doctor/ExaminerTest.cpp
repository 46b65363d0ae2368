#include "TestMachine.h"

#include "doctor/Examiner.h"
#include "support/StandIns.h"
#include "support/TestProgram.h"
#include "system/SettingsStore.h"

#include <QTest>

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

    void readsTheSettings()
    {
        TestMachine m;
        SettingsStore settings(m.profile());
        settings.setString(QStringLiteral("customTorPath"), QStringLiteral("/opt/none/tor"));
        settings.setString(QStringLiteral("bridgeChoice"), QStringLiteral("obfs4"));
        ScriptedRunner processes;
        Examiner examiner(m.profile(), settings, processes);
        auto examining = examiner.examine();
        QTRY_VERIFY(examining.isReady());
        QStringList texts;
        for (const Finding &finding : QCoro::waitFor(std::move(examining)))
            texts << finding.text.english();
        QVERIFY2(texts.join(u'\n').contains(QStringLiteral("/opt/none/tor, is no program")),
                 qPrintable(texts.join(u'\n')));
        QVERIFY2(texts.join(u'\n').contains(QStringLiteral("The chosen bridges can't be used")),
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
