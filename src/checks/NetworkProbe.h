#pragma once

#include "checks/IPCheck.h"

#include <qcorotask.h>

#include <QUrl>

namespace veldmark {

// Asks the Tor Project's exit-check service which address it sees. Two probes may run at the same
// time. ExitCheckProbe is the real one; the controller's tests have their own.
class NetworkProbe {
public:
    NetworkProbe() = default;
    virtual ~NetworkProbe() = default;
    NetworkProbe(const NetworkProbe &) = delete;
    NetworkProbe &operator=(const NetworkProbe &) = delete;

    // The service's URL; the user reads its host name.
    static QUrl checkURL() { return QUrl(QStringLiteral("https://check.torproject.org/api/ip")); }

    // Through Tor's SOCKS port. Fails within 45 seconds.
    virtual QCoro::Task<ProbeResult> viaTor() = 0;
    // On the plain network path, without any proxy. Fails within 10 seconds.
    virtual QCoro::Task<ProbeResult> direct() = 0;
};

} // namespace veldmark
