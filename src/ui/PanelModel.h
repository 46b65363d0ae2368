#pragma once

#include "ui/DoctorModel.h"
#include "ui/Session.h"
#include "ui/TrafficHistory.h"

#include <QQmlEngine>
#include <QTimer>

namespace veldmark {

// The panel's upper half: hero, connection card and banners. Texts and colours by meaning, all
// derived from the session's snapshot. Only Verdict decides how safe the session is.
class PanelModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

    Q_PROPERTY(veldmark::PanelModel::Tone tone READ tone NOTIFY changed)
    Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString detail READ detail NOTIFY changed)
    Q_PROPERTY(QString powerLabel READ powerLabel NOTIFY changed)
    Q_PROPERTY(bool powerEnabled READ powerEnabled NOTIFY changed)
    Q_PROPERTY(bool busy READ busy NOTIFY changed)
    Q_PROPERTY(double progress READ progress NOTIFY changed)
    Q_PROPERTY(QString pillText READ pillText NOTIFY changed)
    Q_PROPERTY(QString pillSymbol READ pillSymbol NOTIFY changed)
    Q_PROPERTY(QString endpoint READ endpoint CONSTANT)
    Q_PROPERTY(QString footnote READ footnote NOTIFY changed)
    Q_PROPERTY(bool canRestore READ canRestore NOTIFY changed)
    Q_PROPERTY(QString waitingFor READ waitingFor NOTIFY changed)
    Q_PROPERTY(QStringList steps READ steps NOTIFY changed)
    Q_PROPERTY(QString offer READ offer NOTIFY changed)
    Q_PROPERTY(bool connected READ connected NOTIFY changed)

    Q_PROPERTY(QString exitAddress READ exitAddress NOTIFY changed)
    Q_PROPERTY(bool exitKnown READ exitKnown NOTIFY changed)
    Q_PROPERTY(QString exitCountry READ exitCountry NOTIFY changed)
    Q_PROPERTY(QString exitHelp READ exitHelp CONSTANT)
    Q_PROPERTY(bool exitVerified READ exitVerified NOTIFY changed)
    Q_PROPERTY(QString verification READ verification NOTIFY changed)
    Q_PROPERTY(QString leakText READ leakText NOTIFY changed)
    Q_PROPERTY(QString leakHelp READ leakHelp NOTIFY changed)
    Q_PROPERTY(veldmark::PanelModel::Tone leakTone READ leakTone NOTIFY changed)
    Q_PROPERTY(QString downloaded READ downloaded NOTIFY changed)
    Q_PROPERTY(QString uploaded READ uploaded NOTIFY changed)
    Q_PROPERTY(veldmark::TrafficHistory *traffic READ traffic CONSTANT)
    Q_PROPERTY(bool checking READ checking NOTIFY changed)
    Q_PROPERTY(QString optimizeText READ optimizeText NOTIFY changed)

    Q_PROPERTY(bool dnsLeaks READ dnsLeaks NOTIFY changed)
    Q_PROPERTY(QStringList leakingResolvers READ leakingResolvers NOTIFY changed)
    Q_PROPERTY(QString moreResolvers READ moreResolvers NOTIFY changed)

    Q_PROPERTY(QString error READ error NOTIFY changed)
    Q_PROPERTY(veldmark::DoctorModel *doctor READ doctor CONSTANT)
    Q_PROPERTY(bool torMissing READ torMissing NOTIFY changed)
    Q_PROPERTY(QString installHint READ installHint CONSTANT)
    Q_PROPERTY(bool installHintIsCommand READ installHintIsCommand CONSTANT)

public:
    enum class Tone { Neutral, Accent, Good, Info, Warning, Danger };
    Q_ENUM(Tone)

    // The DNS card names this many resolvers and counts the rest.
    static constexpr qsizetype shownResolvers = 3;

    // `session` must outlive the model.
    explicit PanelModel(Session &session, QObject *parent = nullptr);

    Tone tone() const;
    QString symbol() const;
    QString title() const;
    QString detail() const;
    QString powerLabel() const;
    bool powerEnabled() const;
    bool busy() const { return isChanging(m_session.now().phase); }
    double progress() const;  // 0…1; 0 unless Tor is bootstrapping
    QString pillText() const; // empty: no pill
    QString pillSymbol() const;
    QString endpoint() const { return QStringLiteral("SOCKS 127.0.0.1:9050"); }
    QString footnote() const;
    bool canRestore() const;
    QString waitingFor() const; // empty unless there was no progress for ten seconds
    QStringList steps() const;  // what was tried, until Tor has connected
    QString offer() const;      // to try bridges; empty without one
    bool connected() const;

    QString exitAddress() const;
    bool exitKnown() const { return connected() && m_session.now().exitIP; }
    QString exitCountry() const { return m_exitCountry; } // two letters, or empty
    QString exitHelp() const;
    bool exitVerified() const
    {
        const Snapshot &now = m_session.now();
        return connected() && !now.isChecking && now.torVerified == true;
    }
    QString verification() const;
    QString leakText() const;
    QString leakHelp() const;
    Tone leakTone() const;
    QString downloaded() const;
    QString uploaded() const;
    TrafficHistory *traffic() { return &m_traffic; }
    bool checking() const { return m_session.now().isChecking; }
    QString optimizeText() const;

    bool dnsLeaks() const; // in the running session
    QStringList leakingResolvers() const;
    QString moreResolvers() const;

    QString error() const;
    DoctorModel *doctor() { return &m_doctor; }
    bool torMissing() const;
    QString installHint() const;
    bool installHintIsCommand() const;

    Q_INVOKABLE void pressPower();
    Q_INVOKABLE void takeOffer() { m_session.takeOffer(); }
    Q_INVOKABLE void restore() { m_session.disconnectFromTor(); }
    Q_INVOKABLE void newIdentity() { m_session.newIdentity(); }
    Q_INVOKABLE void leakTest() { m_session.runChecks(); }
    Q_INVOKABLE void fixDNS() { m_session.fixDNS(); }
    Q_INVOKABLE void retestDNS() { m_session.checkDNS(); }
    Q_INVOKABLE void dismissError() { m_session.dismissError(); }
    Q_INVOKABLE void recheckTor() { m_session.lookAgain(); }
    Q_INVOKABLE void copy(const QString &text) const;

Q_SIGNALS:
    void changed();

private:
    void update();
    void rememberExitCountry();
    LeakStatus knownLeak() const; // the running session's result
    bool isClosed() const;
    bool throughBridge() const;

    Session &m_session;
    TrafficHistory m_traffic;
    DoctorModel m_doctor;
    QTimer m_stillness{this}; // fires when the connection attempt makes no progress
    bool m_still = false;
    double m_lastProgress = 0;
    std::optional<QString> m_exit; // the exit that m_exitCountry belongs to
    QString m_exitCountry;
    Text m_lastDetail;
};

} // namespace veldmark
