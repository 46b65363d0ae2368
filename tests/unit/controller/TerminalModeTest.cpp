#include "controller/PublishedState.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QFile>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

// The controller applies terminal mode on a computer whose netcat is slow to print its options.
class TerminalModeTest : public QObject {
    Q_OBJECT

    static QString go(const Workbench &bench) { return bench.folder.filePath(u"go"_s); }
    static void putSlowNetcat(const Workbench &bench)
    {
        bench.writeFile(bench.profile.netcatCandidates.constFirst(),
                        "#!/bin/sh\nwhile [ ! -e '" + go(bench).toUtf8()
                            + "' ]; do sleep 0.01; done\n"
                              "echo '[-X proxy_protocol] [-x proxy_address[:port]]'\n",
                        true);
    }
    static bool isActive(const Workbench &bench)
    {
        return QFile::exists(bench.profile.terminalDirectory + u"/active"_s);
    }

private Q_SLOTS:
    void theShellsNeedNotWaitForWhatSshCanUse()
    {
        Workbench bench;
        putSlowNetcat(bench);
        QVERIFY(bench.connect());
        bench.controller().setTerminalMode(true);
        QVERIFY(bench.controller().isTerminalInstalled()); // at once
        QVERIFY(isActive(bench));
        QVERIFY(!bench.controller().isTerminalUsedBySsh());
        const auto hint = bench.controller().askTerminalHint();
        QVERIFY(!hint.isReady());
        bench.writeFile(go(bench));
        QVERIFY(until([&] { return bench.controller().isTerminalUsedBySsh(); }));
        QVERIFY(Workbench::finished(hint));
        QVERIFY(!bench.controller().terminalError());
    }

    void whatSshLacksIsKnownWhileTheModeIsOn()
    {
        Workbench bench;
        QVERIFY(!bench.controller().terminalHint()); // the mode is off
        bench.controller().setTerminalMode(true);
        QVERIFY(bench.controller().terminalHint()); // there is no netcat at all
        QVERIFY(bench.controller().terminalHint()->english().contains(u"netcat"_s));
        QCOMPARE(publishedState(bench.controller()).value(u"terminalHint"_s).toString(),
                 bench.controller().terminalHint()->english());
        bench.controller().setTerminalMode(false);
        QVERIFY(!bench.controller().terminalHint());
        bench.controller().setTerminalMode(true);
        QVERIFY(bench.controller().terminalHint());
        bench.restart(); // the mode is on from the start
        QVERIFY(bench.controller().terminalHint());
        putSlowNetcat(bench);
        bench.writeFile(go(bench));
        bench.restart();
        QVERIFY(until([&] { return bench.terminal.knowsSocksCommand(); }));
        const auto asked = bench.controller().askTerminalHint();
        QVERIFY(Workbench::finished(asked));
        QVERIFY(!bench.controller().terminalHint());
    }

    void aHintThatComesWhenTheModeIsOffAgainIsNotShown()
    {
        Workbench bench;
        bench.writeFile(bench.profile.netcatCandidates.constFirst(),
                        "#!/bin/sh\nwhile [ ! -e '" + go(bench).toUtf8()
                            + "' ]; do sleep 0.01; done\necho 'no SOCKS here'\n",
                        true);
        bench.controller().setTerminalMode(true);
        const auto asked = bench.controller().askTerminalHint();
        QVERIFY(!asked.isReady());
        bench.controller().setTerminalMode(false);
        bench.writeFile(go(bench));
        QVERIFY(Workbench::finished(asked));
        settle();
        QVERIFY(!bench.controller().terminalHint());
        bench.controller().setTerminalMode(true);
        QVERIFY(bench.controller().terminalHint()); // which could be shown
    }

    void whatIsSwitchedOffMeanwhileIsNotInstalled()
    {
        Workbench bench;
        putSlowNetcat(bench);
        bench.controller().setTerminalMode(true);
        bench.controller().removeTerminalIntegration();
        bench.writeFile(go(bench));
        QVERIFY(until([&] { return bench.terminal.knowsSocksCommand(); }));
        settle();
        QVERIFY(!bench.controller().isTerminalUsedBySsh());
        QVERIFY(!QFile::exists(bench.profile.terminalDirectory));
    }

    void aControllerThatEndsMeanwhileIsNotMissed()
    {
        Workbench bench;
        putSlowNetcat(bench);
        bench.controller().setTerminalMode(true);
        bench.end();
        bench.writeFile(go(bench));
        QVERIFY(until([&] { return bench.terminal.knowsSocksCommand(); }));
        QVERIFY(!bench.terminal.isUsedBySsh());
    }

    void whatSshCannotHaveIsTold()
    {
        Workbench bench;
        putSlowNetcat(bench);
        bench.controller().setTerminalMode(true);
        QVERIFY(!bench.controller().terminalError());
        bench.writeFile(bench.profile.sshDirectory); // a file where the folder should be
        bench.writeFile(go(bench));
        QVERIFY(until([&] { return bench.controller().terminalError().has_value(); }));
        QVERIFY(bench.controller().terminalError()->english().startsWith(
            u"Couldn't set up terminal mode: "_s));
        QVERIFY(bench.controller().isTerminalInstalled());
    }
};

VELDMARK_TEST(TerminalModeTest)
#include "TerminalModeTest.moc"
