#pragma once

#include "ui/Session.h"

namespace veldmark {

// Tells the desktop when protection is lost: Tor died, traffic or look-ups can leave around it,
// somebody removed the firewall's rules. Each change of that state is told, not each time that it
// is noticed, and never anything that the user has asked for. Main thread.
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
    Phase m_phase;
    Verdict::Danger m_danger = Verdict::Danger::none;
    std::optional<KillSwitch> m_killSwitch;
    bool m_wasExposed = false;
    // the rules were seen standing, and nobody was told of the contrary since
    bool m_wasWatched = false;
    QDateTime m_putBackTold; // when the rules were put back as told last
};

} // namespace veldmark
