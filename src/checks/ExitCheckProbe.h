#pragma once

#include "base/Clock.h"
#include "checks/NetworkProbe.h"

#include <QNetworkProxy>
#include <QObject>
#include <QSslConfiguration>

namespace veldmark {

// The real probe: one HTTPS GET per call, with nothing shared between calls — no connection,
// cookie, cache, credential or TLS session. Redirects are not followed, certificates are always
// checked, and the service's name is resolved by Tor in `viaTor()`, never by this computer.
//
// Lives on the thread that owns the event loop. Probes that are under way when the object is
// destroyed end as `cancelled`.
class ExitCheckProbe final : public NetworkProbe {
public:
    static constexpr quint16 torSocksPort = 9050;

    // `clock` must outlive the object. The rest is for tests against a service of their own.
    explicit ExitCheckProbe(Clock &clock, QUrl url = checkURL(), quint16 socksPort = torSocksPort,
                            QSslConfiguration tls = QSslConfiguration::defaultConfiguration());

    QCoro::Task<ProbeResult> viaTor() override;
    QCoro::Task<ProbeResult> direct() override;

private:
    Clock &m_clock;
    const QUrl m_url;
    const quint16 m_socksPort;
    QSslConfiguration m_tls;
    QObject m_lifetime; // its destruction ends what is under way
};

} // namespace veldmark
