#include "cli/DoctorCommand.h"
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
    }
};

VELDMARK_TEST(DoctorCommandTest)
#include "DoctorCommandTest.moc"
