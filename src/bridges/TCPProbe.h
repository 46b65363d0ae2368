#pragma once

#include "base/Clock.h"
#include "bridges/SpeedTest.h"

namespace veldmark::TCPProbe {

// How long a direct TCP connection to host and port takes until it stands; it is closed at once
// and nothing is sent over it. Nothing at once when it is refused or there is no way to the host,
// nothing after `limit` when nobody answers. `host` must be a numeric address: names are never
// looked up, since that would go around Tor, and count as unreachable.
//
// Runs on the caller's event loop, without any proxy. However it ends, the socket is closed before
// the caller resumes. `clock` times the limit and the connection; it must outlive `limit`, even
// when the probe has ended before.
QCoro::Task<std::optional<ConnectTime>> connectTime(QString host, quint16 port,
                                                    std::chrono::milliseconds limit, Clock *clock);

} // namespace veldmark::TCPProbe
