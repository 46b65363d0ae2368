#include "ui/DoctorModel.h"
#include "StandInSession.h"
#include "support/TestProgram.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace veldmark;

class DoctorModelTest : public QObject {
    Q_OBJECT

    PlatformProfile profile = PlatformProfile::linux(Places::below(QStringLiteral("/nowhere")));

    static Findings some()
    {
        return {{QStringLiteral("tor"),
                 Finding::Level::good,
                 Text::tr("Tor %1 is installed: %2.")
                     .arg(QStringLiteral("0.4.7"), QStringLiteral("%1")),
                 {}},
                {QStringLiteral("session"), Finding::Level::note,
                 Text::tr("The network is still set up."), QStringLiteral("veldmarkctl restore"),
                 Finding::Button::restore},
                {QStringLiteral("clock"), Finding::Level::unknown, Text::tr("The clock."),
                 QStringLiteral("sudo timedatectl set-ntp true")},
                {QStringLiteral("bridges"), Finding::Level::problem, Text::tr("No bridges."),
                 QStringLiteral("veldmarkctl download-transports"), Finding::Button::download}};
    }

private Q_SLOTS:
    void showsWhatKeepsAConnectFromWorkingFirst()
    {
        StandInSession session(profile);
        DoctorModel model(session);
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.verdict(), QStringLiteral("The check gave no result."));
        Snapshot snapshot;
        snapshot.isExamining = true;
        session.show(snapshot);
        QVERIFY(model.busy());
        QCOMPARE(model.verdict(), QStringLiteral("Looking at this computer…"));
        snapshot = {};
        snapshot.findings = some();
        session.show(snapshot);
        QStringList texts, levels, commands, buttons;
        for (int row = 0; row < model.rowCount(); ++row) {
            texts << model.index(row).data(DoctorModel::TextRole).toString();
            levels << model.index(row).data(DoctorModel::LevelRole).toString();
            commands << model.index(row).data(DoctorModel::CommandRole).toString();
            buttons << model.index(row).data(DoctorModel::ButtonRole).toString();
        }
        QCOMPARE(texts,
                 (QStringList{QStringLiteral("No bridges."), QStringLiteral("The clock."),
                              QStringLiteral("The network is still set up."),
                              QStringLiteral("Tor 0.4.7 is installed: %1.")}));
        QCOMPARE(levels,
                 (QStringList{QStringLiteral("Problem"), QStringLiteral("Not known"),
                              QStringLiteral("Note"), QStringLiteral("OK")}));
        QCOMPARE(commands,
                 (QStringList{{}, QStringLiteral("sudo timedatectl set-ntp true"), {}, {}}));
        QCOMPARE(
            buttons,
            (QStringList{QStringLiteral("Download"), {}, QStringLiteral("Restore Network"), {}}));
        QCOMPARE(model.verdict(),
                 QStringLiteral("Veldmark can't connect until each problem is fixed."));
        snapshot.findings.pop_back();
        session.show(snapshot);
        QCOMPARE(model.verdict(),
                 QStringLiteral("No problem was found that keeps Veldmark from connecting."));
        snapshot.findings.front().mayBlock = true;
        session.show(snapshot);
        QCOMPARE(model.verdict(), QStringLiteral("It isn't known whether a connect can work."));
    }

    void pressesWhatMendsIt()
    {
        StandInSession session(profile);
        DoctorModel model(session);
        Snapshot snapshot;
        snapshot.findings = some();
        session.show(snapshot);
        for (const int row : {-1, 0, 1, 2, 3, 4})
            model.press(row);
        model.examine();
        QCOMPARE(session.asked,
                 (QStringList{QStringLiteral("downloadTransports"), QStringLiteral("disconnect"),
                              QStringLiteral("examine")}));
    }

    void keepsItsRowsWhileNothingNewIsFound()
    {
        StandInSession session(profile);
        DoctorModel model(session);
        Snapshot snapshot;
        snapshot.findings = some();
        session.show(snapshot);
        QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
        snapshot.bytesRead = 5;
        session.show(snapshot);
        QCOMPARE(reset.count(), 0);
        snapshot.findings[0].text = Text::tr("Tor %1 is installed: %2.")
                                        .arg(QStringLiteral("0.4.8"), QStringLiteral("%1"));
        session.show(snapshot);
        QCOMPARE(reset.count(), 1);
    }
};

VELDMARK_WINDOWED_TEST(DoctorModelTest)
#include "DoctorModelTest.moc"
