#pragma once

#include "ui/Session.h"

namespace veldmark {

// Tells the desktop when protection is lost: Tor died, traffic or look-ups can leave around it,
// somebody removed the firewall's rules. Never for anything that the user has asked for. Main thread.
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
    void onRulesRemoved(bool putBack);

    Session &m_session;
    Phase m_phase;
    bool m_leaking = false;
};

} // namespace veldmark
