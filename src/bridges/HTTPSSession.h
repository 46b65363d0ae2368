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

// One thing to fetch.
struct Fetch {
    QUrl url;  // https
    Text item; // what it is, for the message about a failure
    qint64 limitBytes = 0;
    QString file; // where it goes; empty: it is given back
    // Hears the bytes so far and in all (-1 when the server does not say). Optional.
    std::function<void(qint64 received, qint64 total)> progress;
};

// HTTPS downloads that belong together: either all go through Tor's SOCKS port, which then also
// looks the names up, or none does. No cookie, cache or credential is kept. Certificates are always
// checked. Redirects are followed as long as they stay with HTTPS. A fetch ends after 60 s in which
// nothing arrived, and after 900 s in any case.
// Lives on the thread that owns the event loop.
class HTTPSSession {
public:
    // `clock` must outlive every fetch. socksPort: of a SOCKS5 proxy on 127.0.0.1; absent: direct,
    // also where the application has a proxy.
    HTTPSSession(Clock &clock, std::optional<quint16> socksPort, QSslConfiguration tls);
    ~HTTPSSession();

    // The body, empty when it went to a file. What a failed fetch has written stays there.
    static QCoro::Task<Result<QByteArray, DownloadError>> fetch(
        std::shared_ptr<HTTPSSession> session, Fetch what);
    // Ends the fetch that is under way, and every later one at its start.
    void cancel();

private:
    class Exchange;
    static QCoro::Task<void> watchLimits(std::weak_ptr<Exchange> watched, Clock *clock);

    Clock &m_clock;
    const QSslConfiguration m_tls;
    QNetworkAccessManager m_access;
    bool m_isCancelled = false;
    QObject m_cancelling; // tells fetches that are under way, by its destruction or its renaming
};

} // namespace veldmark
