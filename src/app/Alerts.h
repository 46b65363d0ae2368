#pragma once

#include "ui/Session.h"

namespace veldmark {

// Notifies the desktop when protection is lost: Tor died, traffic or DNS lookups can leave around
// it, or another program removed the firewall's rules. Notifies once for each change of state, and
// never of a result that the user asked for. Main thread.
class Alerts : public QObject {
    Q_OBJECT

public:
    // `session` must outlive the object.
    explicit Alerts(Session &session);

    // Shows a notification now.
    void tell(const QString &title, const QString &text);

Q_SIGNALS:
    void told(const QString &title, const QString &text);

private:
    void look();
    void tellDanger(Verdict::Danger danger);
    void tellPutBack(const std::optional<KillSwitch> &before);

    Session &m_session;
    ConnectionPhase m_phase;
    int m_shownSession; // the number that was seen last
    Verdict::Danger m_danger = Verdict::Danger::none;
    std::optional<KillSwitch> m_killSwitch;
    bool m_wasExposed = false;
    // The rules were seen in place, and no notification has said otherwise since.
    bool m_wasWatched = false;
    QDateTime m_putBackTold; // when the rules were put back, as last told
};

} // namespace veldmark
