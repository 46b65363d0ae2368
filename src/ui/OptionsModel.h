#pragma once

#include "ui/Session.h"

#include <QQmlEngine>
#include <QUrl>

namespace veldmark {

// The panel's lower half: the options and their two sheets.
class OptionsModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

    Q_PROPERTY(bool locked READ locked NOTIFY changed)
    Q_PROPERTY(bool strictMode READ strictMode WRITE setStrictMode NOTIFY changed)
    Q_PROPERTY(
        bool allowLocalNetwork READ allowLocalNetwork WRITE setAllowLocalNetwork NOTIFY changed)
    Q_PROPERTY(bool optimizeSpeed READ optimizeSpeed WRITE setOptimizeSpeed NOTIFY changed)
    Q_PROPERTY(bool terminalMode READ terminalMode WRITE setTerminalMode NOTIFY changed)
    Q_PROPERTY(QStringList exitNames READ exitNames CONSTANT)
    Q_PROPERTY(int exitIndex READ exitIndex WRITE setExitIndex NOTIFY changed)
    Q_PROPERTY(QString exitUnlisted READ exitUnlisted NOTIFY changed)
    Q_PROPERTY(QString exitWarning READ exitWarning NOTIFY changed)
    Q_PROPERTY(QStringList bridgeNames READ bridgeNames CONSTANT)
    Q_PROPERTY(int bridgeIndex READ bridgeIndex WRITE setBridgeIndex NOTIFY changed)
    Q_PROPERTY(QString bridgeNote READ bridgeNote NOTIFY changed)
    Q_PROPERTY(bool bridgeNoteIsWarning READ bridgeNoteIsWarning NOTIFY changed)
    Q_PROPERTY(bool needsDownload READ needsDownload NOTIFY changed)
    Q_PROPERTY(bool canDownload READ canDownload NOTIFY changed)
    Q_PROPERTY(QString downloadText READ downloadText NOTIFY changed)
    Q_PROPERTY(bool customChosen READ customChosen NOTIFY changed)
    Q_PROPERTY(QString customBridges READ customBridges NOTIFY changed)
    Q_PROPERTY(QStringList applications READ applications NOTIFY changed)
    Q_PROPERTY(QString applicationCount READ applicationCount NOTIFY changed)
    Q_PROPERTY(bool canLaunchBypassed READ canLaunchBypassed NOTIFY changed)
    Q_PROPERTY(QString launchError READ launchError NOTIFY changed)
    Q_PROPERTY(QString applicationsExplanation READ applicationsExplanation CONSTANT)
    Q_PROPERTY(QString terminalError READ terminalError NOTIFY changed)

public:
    // `session` must outlive the model.
    explicit OptionsModel(Session &session, QObject *parent = nullptr);

    bool locked() const { return locksOptions(m_session.now().phase); }
    bool strictMode() const; // while connected, the session's mode
    bool allowLocalNetwork() const { return choices().allowLocalNetwork; }
    bool optimizeSpeed() const { return choices().optimizeSpeed; }
    bool terminalMode() const { return choices().terminalMode; }
    void setStrictMode(bool on);
    void setAllowLocalNetwork(bool on);
    void setOptimizeSpeed(bool on);
    void setTerminalMode(bool on);

    QStringList exitNames() const;
    int exitIndex() const;
    void setExitIndex(int index);
    QString exitUnlisted() const; // the code of a chosen country that is not in the list
    QString exitWarning() const;  // empty without a chosen country

    QStringList bridgeNames() const;
    int bridgeIndex() const; // while connected, of the session's bridges
    void setBridgeIndex(int index);
    // What the choice lacks, or where its bridges come from; may be empty.
    QString bridgeNote() const;
    bool bridgeNoteIsWarning() const;
    bool needsDownload() const;
    bool canDownload() const { return m_session.now().canDownloadTransports; }
    QString downloadText() const;
    bool customChosen() const { return bridges() == BridgeChoice::custom; }
    QString customBridges() const { return choices().customBridges; }
    // "3 bridges recognized", or empty; also bridges between other lines count.
    Q_INVOKABLE QString bridgeCount(const QString &text) const;
    // What of `text` cannot be used, and in which lines; empty when every line can.
    Q_INVOKABLE QString bridgeWarning(const QString &text) const;
    // The bridges in a text that has other lines too, one per line; empty when it has none, or
    // nothing else.
    Q_INVOKABLE QString onlyBridges(const QString &text) const;
    // The bridges in a file of the user's, one per line; empty when there is none, or when it
    // cannot be read.
    Q_INVOKABLE QString bridgesInFile(const QUrl &file) const;
    Q_INVOKABLE void saveCustomBridges(const QString &text);
    Q_INVOKABLE void download() { m_session.downloadTransports(); }

    QStringList applications() const { return choices().bypassApps; }
    QString applicationCount() const;
    bool canLaunchBypassed() const;
    Q_INVOKABLE QString applicationName(const QString &path) const;
    Q_INVOKABLE void removeApplication(const QString &path) { m_session.removeBypassApp(path); }
    Q_INVOKABLE void launchBypassed(const QString &path);
    QString launchError() const { return m_launchError; } // why the last one was not opened
    Q_INVOKABLE void forgetLaunchError();
    QString applicationsExplanation() const; // with markup

    QString terminalError() const;

Q_SIGNALS:
    void changed();

private:
    const Choices &choices() const { return m_session.now().choices; }
    bool showsSession() const; // else the choices for the next one
    BridgeChoice bridges() const;

    Session &m_session;
    const std::vector<ExitCountry> m_exits;
    QString m_launchError;
};

} // namespace veldmark
