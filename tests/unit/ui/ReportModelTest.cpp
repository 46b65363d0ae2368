#include "ui/ReportModel.h"

#include "StandInSession.h"
#include "support/TestProgram.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

class ReportModelTest : public QObject {
    Q_OBJECT

    const PlatformProfile m_profile = PlatformProfile::linux(Places::below(u"/nowhere"_s));

private Q_SLOTS:
    void makesAReportForEachWindow()
    {
        StandInSession session(m_profile);
        ReportModel model(session);
        QSignalSpy changed(&model, &ReportModel::changed);
        QCOMPARE(model.text(), QString());
        model.open();
        QCOMPARE(session.asked, QStringList{u"makeReport"_s});
        Snapshot snapshot;
        snapshot.isReporting = true;
        session.show(snapshot);
        QVERIFY(model.busy());
        snapshot.isReporting = false;
        snapshot.report = u"all\n"_s;
        session.show(snapshot);
        QVERIFY(!model.busy());
        QCOMPARE(model.text(), u"all\n"_s);
        QCOMPARE(changed.count(), 2);
        model.copy();
        QCOMPARE(QGuiApplication::clipboard()->text(), u"all\n"_s);
    }

    void saysWhereItIsSavedOrWhyNot()
    {
        StandInSession session(m_profile);
        ReportModel model(session);
        model.save(u"/tmp/report"_s);
        QCOMPARE(session.asked, QStringList{u"saveReport /tmp/report"_s});
        QCOMPARE(model.note() + model.problem(), QString());
        Snapshot snapshot;
        snapshot.reportSaved = u"/tmp/report"_s;
        session.show(snapshot);
        QCOMPARE(model.note(), u"Saved in /tmp/report"_s);
        snapshot.reportSaved.reset();
        snapshot.reportProblem = u"The disk is full."_s;
        session.show(snapshot);
        QCOMPARE(model.note(), QString());
        QCOMPARE(model.problem(), u"The disk is full."_s);
    }
};

VELDMARK_WINDOWED_TEST(ReportModelTest)
#include "ReportModelTest.moc"
