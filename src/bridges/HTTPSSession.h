#pragma once

#include "base/Clock.h"
#include "base/Result.h"
#include "base/Text.h"
#include "bridges/DownloadError.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QSslConfiguration>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

namespace veldmark {

// One file to download.
struct Fetch {
    QUrl url;  // https
    Text item; // its name in messages about a failure
    qint64 limitBytes = 0;
    QString file; // where the body is written; empty: fetch() returns it
    // Optional. Receives the bytes so far and in all (-1 when the server does not tell).
    std::function<void(qint64 received, qint64 total)> progress;
};

// Related HTTPS downloads. Either all use Tor's SOCKS port, which then also resolves host names, or
// none does. No cookie, cache or credential is kept. Certificates are always checked. Redirects are
// followed as long as they use HTTPS. A fetch ends after 60 s without data, and after 900 s in any
// case. Lives on the thread that owns the event loop.
class HTTPSSession {
public:
    // `clock` must outlive every fetch. socksPort: the port of a SOCKS5 proxy on 127.0.0.1; absent:
    // a direct connection, even when the application has a proxy.
    HTTPSSession(Clock &clock, std::optional<quint16> socksPort, QSslConfiguration tls);
    ~HTTPSSession();

    // The body; empty when it went to a file. A failed fetch leaves its partial file.
    static QCoro::Task<Result<QByteArray, DownloadError>> fetch(
        std::shared_ptr<HTTPSSession> session, Fetch what);
    // Ends the running fetch, and every later one at its start.
    void cancel();

private:
    class Exchange;
    static QCoro::Task<void> watchLimits(std::weak_ptr<Exchange> watched, Clock *clock);

    Clock &m_clock;
    const QSslConfiguration m_tls;
    QNetworkAccessManager m_access;
    bool m_isCancelled = false;
    QObject m_cancelling; // signals running fetches, by its destruction or its renaming
};

} // namespace veldmark
