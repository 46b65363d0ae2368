#pragma once

#include "ui/Session.h"

#include <QQmlEngine>
#include <QUrl>

namespace veldmark {

// The contents and actions of the settings window's six panes.
class SettingsModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

    Q_PROPERTY(bool openAtLogin READ openAtLogin WRITE setOpenAtLogin NOTIFY changed)
    Q_PROPERTY(bool canOpenAtLogin READ canOpenAtLogin NOTIFY changed)
    Q_PROPERTY(bool autoConnect READ autoConnect WRITE setAutoConnect NOTIFY changed)
    Q_PROPERTY(bool passwordless READ passwordless NOTIFY changed)
    Q_PROPERTY(QString passwordlessError READ passwordlessError NOTIFY changed)
    Q_PROPERTY(bool torFound READ torFound NOTIFY changed)
    Q_PROPERTY(QString torStatus READ torStatus NOTIFY changed)
    Q_PROPERTY(QString torPlace READ torPlace NOTIFY changed)
    Q_PROPERTY(QString installCommand READ installCommand NOTIFY changed)
    Q_PROPERTY(bool torCustom READ torCustom NOTIFY changed)
    Q_PROPERTY(bool torLocked READ torLocked NOTIFY changed)
    Q_PROPERTY(bool separateApps READ separateApps WRITE setSeparateApps NOTIFY changed)
    Q_PROPERTY(bool canSeparateApps READ canSeparateApps CONSTANT)
    Q_PROPERTY(QString separationProblem READ separationProblem NOTIFY changed)
    Q_PROPERTY(QString onComputer READ onComputer CONSTANT)
    Q_PROPERTY(bool lyrebird READ lyrebird NOTIFY changed)
    Q_PROPERTY(bool snowflake READ snowflake NOTIFY changed)
    Q_PROPERTY(bool webtunnel READ webtunnel NOTIFY changed)
    Q_PROPERTY(QString bridgeSource READ bridgeSource NOTIFY changed)
    Q_PROPERTY(QString bundleStatus READ bundleStatus NOTIFY changed)
    Q_PROPERTY(bool bundleLoaded READ bundleLoaded NOTIFY changed)
    Q_PROPERTY(bool canDownload READ canDownload NOTIFY changed)
    Q_PROPERTY(QString downloadText READ downloadText NOTIFY changed)
    Q_PROPERTY(QString bundleTrust READ bundleTrust NOTIFY changed)
    Q_PROPERTY(QStringList climbNames READ climbNames CONSTANT)
    Q_PROPERTY(int climbIndex READ climbIndex WRITE setClimbIndex NOTIFY changed)
    Q_PROPERTY(bool terminalMode READ terminalMode WRITE setTerminalMode NOTIFY changed)
    Q_PROPERTY(bool terminalInstalled READ terminalInstalled NOTIFY changed)
    Q_PROPERTY(QString terminalStatus READ terminalStatus NOTIFY changed)
    Q_PROPERTY(QString terminalTools READ terminalTools CONSTANT)
    Q_PROPERTY(QString terminalExplanation READ terminalExplanation CONSTANT)
    Q_PROPERTY(QString terminalError READ terminalError NOTIFY changed)
    Q_PROPERTY(bool changesActive READ changesActive NOTIFY changed)
    Q_PROPERTY(bool canRestore READ canRestore NOTIFY changed)
    Q_PROPERTY(QString restoreCommand READ restoreCommand CONSTANT)
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(QString homePage READ homePage CONSTANT)
    Q_PROPERTY(QString credits READ credits CONSTANT)

public:
    // `session` must outlive the model.
    explicit SettingsModel(Session &session, QObject *parent = nullptr);

    bool openAtLogin() const { return now().openAtLogin.value_or(false); }
    bool canOpenAtLogin() const { return now().openAtLogin.has_value(); }
    void setOpenAtLogin(bool on) { m_session.setOpenAtLogin(on); }
    bool autoConnect() const { return now().choices.autoConnect; }
    void setAutoConnect(bool on);
    bool passwordless() const { return now().passwordlessInstalled; }
    QString passwordlessError() const;

    bool torFound() const { return now().torPath.has_value(); }
    QString torStatus() const; // "Found", "Missing" (a custom one), "Not found" (none)
    QString torPlace() const;
    bool torLocked() const { return locksOptions(now().phase); } // a session keeps its tor
    // The command that `torPlace` tells the user to run; empty when it names none.
    QString installCommand() const;
    bool torCustom() const { return !now().choices.customTorPath.isEmpty(); }
    QUrl torFolder() const; // where the file chooser starts
    QString onComputer() const;

    bool separateApps() const { return now().choices.separateApps; }
    void setSeparateApps(bool on);
    bool canSeparateApps() const;      // whether the system can separate applications
    QString separationProblem() const; // in the running session; empty without one

    bool lyrebird() const { return now().transports.lyrebird.has_value(); }
    bool snowflake() const { return now().transports.snowflake.has_value(); }
    bool webtunnel() const { return now().transports.webtunnel.has_value(); }
    QString bridgeSource() const;
    bool bundleLoaded() const { return !now().bundleVersion.isEmpty(); }
    QString bundleStatus() const;
    bool canDownload() const { return now().canDownloadTransports; }
    QString downloadText() const;
    QStringList climbNames() const;
    int climbIndex() const;
    void setClimbIndex(int index);
    QString bundleTrust() const; // how a download is verified with the present programs

    bool terminalMode() const { return now().choices.terminalMode; }
    void setTerminalMode(bool on);
    bool terminalInstalled() const { return now().terminalInstalled; }
    QString terminalStatus() const;
    QString terminalTools() const;
    QString terminalExplanation() const;
    QString terminalError() const;

    bool changesActive() const { return now().markerPresent; }
    bool canRestore() const;
    QString restoreCommand() const { return m_session.profile().manualRestoreCommand; }
    QString homePage() const { return m_session.profile().homePage; } // empty without one
    QString credits() const;
    QString version() const { return tr("Version %1").arg(QStringLiteral(VELDMARK_VERSION)); }

    Q_INVOKABLE void installPasswordless() { m_session.installPasswordless(); }
    Q_INVOKABLE void removePasswordless() { m_session.removePasswordless(); }
    Q_INVOKABLE void chooseTor(const QUrl &file); // empty: automatic
    Q_INVOKABLE void lookForTransports() { m_session.lookForTransports(); }
    Q_INVOKABLE void download() { m_session.downloadTransports(); }
    Q_INVOKABLE void removeTerminalIntegration() { m_session.removeTerminalIntegration(); }
    Q_INVOKABLE void restore() { m_session.disconnectFromTor(); }
    // Reads again what other programs may have changed since the pane was last open.
    Q_INVOKABLE void lookAgain() { m_session.lookAgain(); }
    Q_INVOKABLE void copy(const QString &text) const;

Q_SIGNALS:
    void changed();

private:
    const Snapshot &now() const { return m_session.now(); }

    Session &m_session;
};

} // namespace veldmark
