#pragma once

#include "base/ExitCountry.h"
#include "platform/InstalledApplications.h"
#include "platform/PlatformProfile.h"
#include "ui/Snapshot.h"

#include <QObject>

namespace veldmark {

// What view models read and call. The program's implementation uses TorController; tests and
// pictures use one that they fill themselves. Main thread. Intents return at once; the next
// snapshots show their results.
class Session : public QObject {
    Q_OBJECT

public:
    // `profile` must outlive the session.
    explicit Session(const PlatformProfile &profile, QObject *parent = nullptr)
        : QObject(parent),
          m_profile(profile)
    {
    }

    const Snapshot &now() const { return m_now; }
    const PlatformProfile &profile() const { return m_profile; }
    virtual std::vector<ExitCountry> exitChoices() const = 0;
    virtual std::vector<InstalledApplication> installedApplications() const = 0; // the present ones
    virtual QString applicationName(const QString &path) const = 0;
    // The application with an identity's id; reads a file.
    virtual InstalledApplication applicationOfIdentity(const QString &id) const = 0;

    virtual void store(const Choices &choices) = 0;
    virtual void connectToTor() = 0;
    virtual void takeOffer() = 0;         // to try bridges
    virtual void disconnectFromTor() = 0; // also ends an attempt, and restores a left-over network
    virtual void runChecks() = 0;
    virtual void checkDNS() = 0; // with a live test
    virtual void fixDNS() = 0;
    virtual void newIdentity() = 0;
    virtual void newCircuit(const QString &id) = 0;
    virtual void optimizeCircuits() = 0;
    virtual void refreshCircuits() = 0;
    virtual void dismissError() = 0;
    // Reads again what other programs may change: tor, the session marker, the terminal's files,
    // the login item, the downloaded bundle.
    virtual void lookAgain() = 0;
    virtual void lookForTransports() = 0;
    virtual void examine() = 0;    // checks what a connect needs on this computer
    virtual void makeReport() = 0; // a report without secrets, for others; it is not sent
    virtual void saveReport(const QString &file) = 0; // the last one; the user has chosen the file
    virtual void downloadTransports() = 0;
    virtual void installPasswordless() = 0;
    virtual void removePasswordless() = 0;
    virtual void removeTerminalIntegration() = 0;
    virtual void setOpenAtLogin(bool on) = 0;
    virtual void addBypassApp(const QString &application) = 0;
    virtual void removeBypassApp(const QString &application) = 0;
    virtual void launchBypassed(const QString &application) = 0;

Q_SIGNALS:
    // Emitted once for any number of fields that changed together.
    void changed();
    // launchBypassed() failed; a sentence in the user's language.
    void launchFailed(const QString &reason);

protected:
    Snapshot m_now;

private:
    const PlatformProfile &m_profile;
};

} // namespace veldmark
