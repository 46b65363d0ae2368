#pragma once

#include "ui/LogFeed.h"
#include "ui/Session.h"

#include <QStringList>

namespace veldmark {

// Every result of a leak test.
inline std::vector<LeakStatus> everyLeak()
{
    const LeakStatus exposed = LeakStatus::exposed(QStringLiteral("198.51.100.23"));
    return {exposed,
            LeakStatus::notTested(),
            LeakStatus::checking(),
            LeakStatus::checkingAfter(exposed),
            LeakStatus::blocked(),
            LeakStatus::inconclusive()};
}

// A session that shows a test's snapshot and records the requested actions.
class StandInSession final : public Session {
public:
    explicit StandInSession(const PlatformProfile &profile) : Session(profile) { }

    void show(const Snapshot &snapshot)
    {
        m_now = snapshot;
        Q_EMIT changed();
    }

    std::vector<ExitCountry> exitChoices() const override
    {
        return {{{}, Text::tr("Any (recommended)")},
                {QStringLiteral("us"), Text::tr("United States")},
                {QStringLiteral("de"), Text::tr("Germany")},
                {QStringLiteral("se"), Text::tr("Sweden")}};
    }
    std::vector<InstalledApplication> installedApplications() const override
    {
        return {
            {QStringLiteral("/usr/share/applications/letters.desktop"),
             QStringLiteral("Letters"),
             {}},
            {QStringLiteral("/usr/share/applications/games.desktop"), QStringLiteral("Games"),
             QStringLiteral("no-such-icon")},
            {QStringLiteral("/usr/share/applications/bake.desktop"), QStringLiteral("bake"), {}}};
    }
    QString applicationName(const QString &path) const override
    {
        for (const InstalledApplication &application : installedApplications())
            if (application.path == path)
                return application.name;
        return path.section(u'/', -1);
    }
    InstalledApplication applicationOfIdentity(const QString &id) const override
    {
        lookedUp << id;
        for (const InstalledApplication &application : installedApplications())
            if (application.path.endsWith(u'/' + id + QStringLiteral(".desktop")))
                return application;
        return {{}, id, {}};
    }
    void store(const Choices &choices) override
    {
        m_now.choices = choices;
        Q_EMIT changed();
    }
    void connectToTor() override { asked << QStringLiteral("connect"); }
    void takeOffer() override { asked << QStringLiteral("takeOffer"); }
    void disconnectFromTor() override { asked << QStringLiteral("disconnect"); }
    void runChecks() override { asked << QStringLiteral("runChecks"); }
    void checkDNS() override { asked << QStringLiteral("checkDNS"); }
    void fixDNS() override { asked << QStringLiteral("fixDNS"); }
    void newIdentity() override { asked << QStringLiteral("newIdentity"); }
    void newCircuit(const QString &id) override { asked << QStringLiteral("newCircuit ") + id; }
    void optimizeCircuits() override { asked << QStringLiteral("optimizeCircuits"); }
    void refreshCircuits() override { asked << QStringLiteral("refreshCircuits"); }
    void dismissError() override
    {
        m_now.errorMessage.reset();
        Q_EMIT changed();
    }
    void lookAgain() override { asked << QStringLiteral("lookAgain"); }
    void lookForTransports() override { asked << QStringLiteral("lookForTransports"); }
    void examine() override { asked << QStringLiteral("examine"); }
    void makeReport() override { asked << QStringLiteral("makeReport"); }
    void saveReport(const QString &file) override { asked << QStringLiteral("saveReport ") + file; }
    void downloadTransports() override { asked << QStringLiteral("downloadTransports"); }
    void installPasswordless() override { asked << QStringLiteral("installPasswordless"); }
    void removePasswordless() override { asked << QStringLiteral("removePasswordless"); }
    void removeTerminalIntegration() override { asked << QStringLiteral("removeTerminal"); }
    void setOpenAtLogin(bool on) override
    {
        m_now.openAtLogin = on;
        Q_EMIT changed();
    }
    void addBypassApp(const QString &application) override
    {
        m_now.choices.bypassApps << application;
        Q_EMIT changed();
    }
    void removeBypassApp(const QString &application) override
    {
        m_now.choices.bypassApps.removeAll(application);
        Q_EMIT changed();
    }
    void launchBypassed(const QString &application) override
    {
        asked << QStringLiteral("launchBypassed ") + application;
    }

    QStringList asked;
    mutable QStringList lookedUp; // applications, by identity
};

class StandInLog final : public LogFeed {
public:
    const TorLog::Snapshot &snapshot() const override { return m_snapshot; }
    void start() override { running = true; }
    void stop() override { running = false; }

    void show(State state, const QList<TorLogLine> &lines = {})
    {
        m_snapshot = state == State::unreadable ? TorLog::Snapshot::unreadable()
                                                : TorLog::Snapshot::of(lines);
        Q_EMIT changed();
    }

    bool running = false;

private:
    TorLog::Snapshot m_snapshot;
};

} // namespace veldmark
