#pragma once

#include "base/Clock.h"
#include "checks/NetworkProbe.h"

#include <QNetworkProxy>
#include <QObject>
#include <QSslConfiguration>

namespace veldmark {

// The real probe: one HTTPS GET per call. Calls share no connection, cookie, cache, credential or
// TLS session. Redirects are not followed, and certificates are always verified. In `viaTor()` Tor
// resolves the service's name, never this computer.
//
// Lives on the thread that owns the event loop. The destructor ends running probes as `cancelled`.
class ExitCheckProbe final : public NetworkProbe {
public:
    static constexpr quint16 torSocksPort = 9050;

    // `clock` must outlive the object. The other parameters are for tests with their own service.
    explicit ExitCheckProbe(Clock &clock, QUrl url = checkURL(), quint16 socksPort = torSocksPort,
                            QSslConfiguration tls = QSslConfiguration::defaultConfiguration());

    QCoro::Task<ProbeResult> viaTor() override;
    QCoro::Task<ProbeResult> direct() override;

private:
    Clock &m_clock;
    const QUrl m_url;
    const quint16 m_socksPort;
    QSslConfiguration m_tls;
    QObject m_lifetime; // its destruction ends running probes
};

} // namespace veldmark
