#include "cli/ReportCommand.h"

#include "instance/InstanceServer.h"
#include "support/Computer.h"
#include "support/Output.h"
#include "support/TestProgram.h"
#include "support/Workbench.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace veldmark;

namespace {

struct Told {
    std::optional<ExitStatus> status; // empty when the command does not end
    QString text;
    QString error;
};

QCoro::Task<void> reported(Invocation invocation, PlatformProfile profile,
                           std::shared_ptr<std::optional<ExitStatus>> ended)
{
    const ExitStatus status = co_await showReport(invocation, profile);
    *ended = status;
}

Told told(const PlatformProfile &profile, const QString &file = {}, bool json = false)
{
    Invocation invocation;
    invocation.verb = Verb::Id::report;
    invocation.output = file;
    invocation.json = json;
    const Output output;
    const Output errors(stderr);
    const auto ended = std::make_shared<std::optional<ExitStatus>>();
    reported(invocation, profile, ended);
    until([&ended] { return ended->has_value(); });
    return {*ended, output.text(), errors.text()};
}

// Takes connections at the instance's socket.
std::unique_ptr<QLocalServer> listeningAt(const PlatformProfile &profile)
{
    QDir().mkpath(QFileInfo(profile.controlSocket).path());
    auto server = std::make_unique<QLocalServer>();
    return server->listen(profile.controlSocket) ? std::move(server) : nullptr;
}

} // namespace

// The whole command with the real processes that it starts.
class ReportCommandTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void showsTheReportWithoutAnInstance()
    {
        Computer computer;
        computer.writeMarker();
        const Told all = told(computer.profile);
        QVERIFY(all.status == ExitStatus::done);
        QCOMPARE(all.error, QString());
        QVERIFY2(all.text.startsWith(u"Veldmark report, "_s), qPrintable(all.text));
        QVERIFY2(all.text.contains(u"\nphase: stale\n"_s), qPrintable(all.text));
        QVERIFY(all.text.contains(u"Z disconnected\n"_s) && all.text.contains(u"Z stale\n"_s));
    }

    void asksTheRunningInstance()
    {
        Workbench bench;
        auto server = InstanceServer::start(bench.controller());
        QVERIFY(server);
        bench.controller().showProblem(Text(u"Tor at 203.0.113.9 is gone"_s));
        bench.controller().customBridges.set(u"obfs4 198.51.100.7:443 cert=Zm9vYmFyYmF6"_s);
        const Told all = told(bench.profile);
        QVERIFY(all.status == ExitStatus::done);
        QVERIFY2(all.text.contains(u"\nerrorMessage: Tor at address-1 is gone\n"_s),
                 qPrintable(all.text));
        QVERIFY(all.text.contains(u"\ncustomBridges: obfs4 bridge-1\n"_s));
        server->reset();
        settle();
    }

    void doesWithoutAnInstanceThatGivesNoState_data()
    {
        QTest::addColumn<bool>("silent");
        QTest::addColumn<QString>("reason");
        QTest::newRow("that ends") << false << u"The running instance gave no state: "_s;
        // five seconds
        QTest::newRow("that says nothing")
            << true << u"The running instance gave no state: It doesn't answer."_s;
    }

    void doesWithoutAnInstanceThatGivesNoState()
    {
        QFETCH(bool, silent);
        QFETCH(QString, reason);
        Computer computer;
        computer.writeMarker();
        const auto server = listeningAt(computer.profile);
        QVERIFY(server);
        if (!silent) {
            QObject::connect(server.get(), &QLocalServer::newConnection, server.get(),
                             [&server] { delete server->nextPendingConnection(); });
        }
        const Told all = told(computer.profile);
        QVERIFY(all.status == ExitStatus::done);
        QVERIFY2(all.text.contains(u'\n' + reason), qPrintable(all.text));
        QVERIFY2(all.error.contains(reason), qPrintable(all.error));
        QVERIFY(all.text.contains(u"\nphase: stale\n"_s));
    }

    void writesWhatItHasShown()
    {
        Computer computer;
        const QString file = computer.folder.filePath(u"report.txt"_s);
        const Told all = told(computer.profile, file);
        QVERIFY(all.status == ExitStatus::done);
        QCOMPARE(all.error, u"veldmarkctl: This report goes to %1.\n"_s.arg(file));
        QFile written(file);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QVERIFY(!all.text.isEmpty());
        QCOMPARE(QString::fromUtf8(written.readAll()), all.text);
        QCOMPARE(QFileInfo(file).permissions() & (QFile::ReadGroup | QFile::ReadOther),
                 QFile::Permissions());
        // And never in a file's place.
        const Told again = told(computer.profile, file);
        QVERIFY(again.status == ExitStatus::failed);
        QVERIFY(again.error.endsWith(
            u"%1 exists already. Choose another name for the report.\n"_s.arg(file)));
    }

    void saysTheSameAsJson()
    {
        Computer computer;
        const Told all = told(computer.profile, {}, true);
        QVERIFY(all.status == ExitStatus::done);
        const QJsonObject read = QJsonDocument::fromJson(all.text.toUtf8()).object();
        QStringList titles;
        for (const QJsonValue &section : read[u"sections"_s].toArray()) {
            titles << section[u"title"_s].toString();
            QVERIFY(!section[u"lines"_s].toArray().isEmpty());
        }
        QCOMPARE(titles.join(u", "_s),
                 u"Versions, Settings, Session, Phases, in UTC, Notes of the helper, "
                 "Journal of the helper, Rules, Doctor, Tor's log"_s);
    }
};

VELDMARK_TEST(ReportCommandTest)
#include "ReportCommandTest.moc"
