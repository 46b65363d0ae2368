#pragma once

#include "base/Clock.h"
#include "bridges/SpeedTest.h"

namespace veldmark::TCPProbe {

// How long a direct TCP connection to host and port takes. It is closed at once; no data is sent.
// Returns at once without a value when the connection is refused or the host is unreachable, and
// after `limit` when there is no answer. `host` must be a numeric address: a name counts as
// unreachable, since its DNS lookup would go around Tor.
//
// Runs on the caller's event loop, without any proxy. The socket is always closed before the caller
// resumes. `clock` times the limit and the connection. It must live for the whole of `limit`, even
// when the probe ends earlier.
QCoro::Task<std::optional<ConnectTime>> connectTime(QString host, quint16 port,
                                                    std::chrono::milliseconds limit, Clock *clock);

} // namespace veldmark::TCPProbe
