#pragma once

#include "base/Text.h"
#include "doctor/Examiner.h"
#include "platform/RunningApplications.h"
#include "report/ReportMaker.h"
#include "system/ChildProcessRunner.h"
#include "system/SessionMark.h"
#include "system/SettingsStore.h"
#include "ui/Session.h"

#include <qcorotask.h>

namespace veldmark {

class TorController;

// The session that views see, on top of the controller. Reads the controller's fields once after
// any number of them have changed, and passes intents on as the controller's operations.
class ControllerSession final : public Session {
    Q_OBJECT

public:
    // All must outlive the session.
    ControllerSession(TorController &controller, SettingsStore &settings,
                      RunningApplications &applications);

    std::vector<ExitCountry> exitChoices() const override;
    std::vector<InstalledApplication> installedApplications() const override
    {
        return veldmark::installedApplications();
    }
    QString applicationName(const QString &path) const override
    {
        return m_applications.displayName(path);
    }
    InstalledApplication applicationOfIdentity(const QString &id) const override
    {
        return veldmark::applicationOfIdentity(id);
    }
    void store(const Choices &choices) override;
    void connectToTor() override;
    void takeOffer() override;
    void disconnectFromTor() override;
    void runChecks() override;
    void checkDNS() override;
    void fixDNS() override;
    void newIdentity() override;
    void newCircuit(const QString &id) override;
    void optimizeCircuits() override;
    void refreshCircuits() override;
    void dismissError() override;
    void lookAgain() override;
    void lookForTransports() override;
    void examine() override;
    void makeReport() override;
    void saveReport(const QString &file) override;
    void downloadTransports() override;
    void installPasswordless() override;
    void removePasswordless() override;
    void removeTerminalIntegration() override;
    void setOpenAtLogin(bool on) override;
    void addBypassApp(const QString &application) override;
    void removeBypassApp(const QString &application) override;
    void launchBypassed(const QString &application) override;

private:
    void schedule();
    void read();
    QCoro::Task<void> readCircuits();
    QCoro::Task<void> takeNewIdentity();
    void followTerminalMode();
    QCoro::Task<void> lookOnceSshIsKnown();
    QCoro::Task<void> launch(QString application);
    QCoro::Task<void> look();
    QCoro::Task<void> report();

    TorController &m_controller;
    RunningApplications &m_applications;
    std::optional<SessionMark> m_sessionMark; // of the session that is shown
    int m_session = 0;                        // its number in the snapshot
    bool m_scheduled = false;
    bool m_isReadingCircuits = false;
    bool m_circuitsWanted = false; // read once more after the reading under way
    bool m_terminalModeWasOn = false;
    // the two flags below are current; finding them reads the user's files
    bool m_terminalIsKnown = false;
    bool m_terminalInstalled = false;
    bool m_terminalForSsh = false;
    Findings m_findings;
    bool m_isExamining = false;
    QString m_report;
    bool m_isReporting = false;
    std::optional<QString> m_reportSaved;
    std::optional<Text> m_reportProblem;
    ChildProcessRunner m_processes; // for the two below
    // The last members: their destruction resumes their waiting callers.
    Examiner m_examiner;
    ReportMaker m_reporter;
};

} // namespace veldmark
