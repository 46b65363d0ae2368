#include "cli/DoctorCommand.h"
#include "../doctor/TestMachine.h"
#include "support/Output.h"
#include "support/TestProgram.h"

#include <QJsonArray>
#include <QTest>

using namespace veldmark;

class DoctorCommandTest : public QObject {
    Q_OBJECT

    const Findings m_good{{QStringLiteral("tor"),
                           Finding::Level::good,
                           Text::tr("Tor %1 is installed.").arg(QStringLiteral("0.4.7")),
                           {}}};
    const Findings m_bad{m_good.front(),
                         {QStringLiteral("nftables"), Finding::Level::problem,
                          Text::tr("nftables isn't installed."),
                          QStringLiteral("sudo apt install nftables")}};

    const Findings m_doubtful{m_good.front(),
                              {QStringLiteral("firewalls"),
                               Finding::Level::unknown,
                               Text::tr("It may let nothing out."),
                               {},
                               Finding::Button::none,
                               true}};
    QString m_told;

    ExitStatus ended(const TestMachine &machine, bool json)
    {
        Invocation invocation;
        invocation.verb = Verb::Id::doctor;
        invocation.json = json;
        const Output output;
        const ExitStatus status = QCoro::waitFor(showDoctor(invocation, machine.profile()));
        m_told = output.text();
        return status;
    }

private Q_SLOTS:
    void saysWhatIsThereAndWhatMendsIt()
    {
        QCOMPARE(Report::doctor(m_good),
                 QStringLiteral("good     Tor 0.4.7 is installed.\nA connect can work."));
        QCOMPARE(
            Report::doctor(m_bad),
            QStringLiteral("good     Tor 0.4.7 is installed.\nproblem  nftables isn't installed.\n"
                           "         sudo apt install nftables\nA connect can't work yet."));
    }

    void saysTheSameAsJson()
    {
        const QJsonObject bad = doctorFindings(m_bad);
        QCOMPARE(bad[QStringLiteral("canConnect")], QJsonValue(false));
        const QJsonObject second = bad[QStringLiteral("findings")][1].toObject();
        QCOMPARE(second,
                 (QJsonObject{
                     {QStringLiteral("name"), QStringLiteral("nftables")},
                     {QStringLiteral("level"), QStringLiteral("problem")},
                     {QStringLiteral("text"), QStringLiteral("nftables isn't installed.")},
                     {QStringLiteral("command"), QStringLiteral("sudo apt install nftables")}}));
        const QJsonObject good = doctorFindings(m_good);
        QCOMPARE(good[QStringLiteral("canConnect")], QJsonValue(true));
        QVERIFY(good[QStringLiteral("findings")][0][QStringLiteral("command")].isNull());
        QVERIFY(doctorFindings(m_doubtful)[QStringLiteral("canConnect")].isNull());
    }

    void saysWhatCannotBeTold()
    {
        QVERIFY(Report::doctor(m_doubtful)
                    .endsWith(QStringLiteral("\nIt isn't known whether a connect can work.")));
    }

    void endsWithWhetherAConnectCanWork_data()
    {
        QTest::addColumn<bool>("json");
        QTest::newRow("for people") << false;
        QTest::newRow("for programs") << true;
    }

    // Runs on a whole computer with its real processes.
    void endsWithWhetherAConnectCanWork()
    {
        QFETCH(bool, json);
        TestMachine m;
        m.program("/usr/bin/tor", "#!/bin/sh\necho 'Tor version 0.4.8.9.'\n");
        QCOMPARE(ended(m, json), ExitStatus::done);
        m.write("/etc/ufw/ufw.conf", "ENABLED=yes\n");
        m.write("/etc/default/ufw", "DEFAULT_OUTPUT_POLICY=\"DROP\"\n");
        QCOMPARE(ended(m, json), ExitStatus::failed); // its rules are not known
        QVERIFY2(m_told.contains(QStringLiteral("so Tor may not get through: ufw.")),
                 qPrintable(m_told));
        m.write("/etc/ufw/ufw.conf", "ENABLED=no\n");
        QCOMPARE(ended(m, json), ExitStatus::done);
        m.remove("/usr/bin/tor");
        QCOMPARE(ended(m, json), ExitStatus::failed);
        QVERIFY2(m_told.contains(QStringLiteral("Tor isn't installed.")), qPrintable(m_told));
    }
};

VELDMARK_TEST(DoctorCommandTest)
#include "DoctorCommandTest.moc"
