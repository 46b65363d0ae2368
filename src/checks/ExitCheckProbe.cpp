#include "checks/ExitCheckProbe.h"

#include "base/PrivateRequest.h"
#include "base/ResumeOnce.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <algorithm>
#include <memory>

using namespace std::chrono_literals;

namespace veldmark {

namespace {

struct Limits {
    std::chrono::milliseconds idle; // without any data
    std::chrono::milliseconds total;
};
constexpr Limits torLimits{30s, 45s};
// Much shorter, so that a blocked direct request ends soon.
constexpr Limits directLimits{8s, 10s};

// One request and its result. The coroutine that waits for the answer owns it. The coroutine
// resumes through the event loop, so the reply is never deleted inside one of its own signals.
class Exchange : public QObject {
public:
    Exchange(Clock &clock, const QNetworkProxy &proxy) : m_clock(clock)
    {
        m_access.setProxy(proxy);
        m_access.setRedirectPolicy(QNetworkRequest::ManualRedirectPolicy);
        m_access.setAutoDeleteReplies(false);
    }

    ~Exchange() override { end(ProbeError::Kind::cancelled, QStringLiteral("Cancelled.")); }

    void start(const QNetworkRequest &request)
    {
        noteActivity();
        m_reply.reset(m_access.get(request));
        QNetworkReply *reply = m_reply.get();
        connect(reply, &QNetworkReply::encrypted, this, &Exchange::noteAnswer);
        connect(reply, &QNetworkReply::sslErrors, this, &Exchange::noteAnswer);
        connect(reply, &QNetworkReply::metaDataChanged, this, &Exchange::readHead);
        connect(reply, &QNetworkReply::readyRead, this, &Exchange::readBody);
        connect(reply, &QNetworkReply::finished, this, &Exchange::readEnd);
    }

    const ResumeOnce<ProbeResult> &answer() const { return m_answer; }
    Clock::TimePoint lastActivity() const { return m_lastActivity; }

    void end(ProbeError::Kind kind, const QString &detail)
    {
        finish(Failure(ProbeError{kind, detail, m_reached}));
    }

private:
    void noteActivity() { m_lastActivity = m_clock.now(); }

    void noteAnswer()
    {
        m_reached = true;
        noteActivity();
    }

    void readHead()
    {
        noteAnswer();
        const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (status != 200)
            end(ProbeError::Kind::badResponse, QStringLiteral("HTTP status %1").arg(status));
    }

    void readBody()
    {
        noteAnswer();
        // One byte beyond the limit tells "too long" from "just fits".
        m_body += m_reply->read(IPCheck::sizeLimitBytes + 1 - m_body.size());
        if (m_body.size() > IPCheck::sizeLimitBytes)
            end(ProbeError::Kind::badResponse, QStringLiteral("The answer is too long."));
    }

    void readEnd()
    {
        const QNetworkReply::NetworkError error = m_reply->error();
        if (error == QNetworkReply::SslHandshakeFailedError) {
            m_reached = true;
            end(ProbeError::Kind::certificate, m_reply->errorString());
        } else if (error != QNetworkReply::NoError) {
            // A connection that the server closed had reached the server.
            m_reached = m_reached || error == QNetworkReply::RemoteHostClosedError;
            end(ProbeError::Kind::transport, m_reply->errorString());
        } else {
            readBody();
            const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
            if (status != 200)
                end(ProbeError::Kind::badResponse, QStringLiteral("No HTTP answer"));
            else
                finish(IPCheck::fromJson(m_body));
        }
    }

    void finish(ProbeResult result)
    {
        // The exchange is deleted soon, which aborts the reply if it is still running.
        if (m_answer.complete(std::move(result)) && m_reply)
            m_reply->disconnect(this);
    }

    Clock &m_clock;
    QNetworkAccessManager m_access;
    std::unique_ptr<QNetworkReply> m_reply; // destroyed before its manager
    ResumeOnce<ProbeResult> m_answer;
    QByteArray m_body;
    Clock::TimePoint m_lastActivity;
    bool m_reached = false;
};

// Ends `exchange` when no data arrives or the request takes too long. Checks before each use
// whether the exchange still exists: after an answer in time it is gone, and the clock may be gone
// too.
QCoro::Task<void> watchLimits(std::weak_ptr<Exchange> watched, Clock *clock, Limits limits)
{
    const Clock::TimePoint lastMoment = clock->now() + limits.total;
    Clock::TimePoint now = clock->now();
    Clock::TimePoint deadline = std::min(lastMoment, now + limits.idle);
    for (;;) {
        const Clock::TimePoint wakeUp = deadline;
        co_await clock->sleep(std::chrono::ceil<std::chrono::milliseconds>(wakeUp - now));
        const std::shared_ptr<Exchange> exchange = watched.lock();
        if (!exchange || exchange->answer().isDone())
            co_return;
        now = clock->now();
        deadline = std::min(lastMoment, exchange->lastActivity() + limits.idle);
        // Woken too early: the clock is being destroyed.
        if (deadline <= now || now < wakeUp) {
            exchange->end(ProbeError::Kind::timedOut, QStringLiteral("No answer in time."));
            co_return;
        }
    }
}

QCoro::Task<ProbeResult> fetch(Clock *clock, QObject *owner, QNetworkRequest request,
                               QNetworkProxy proxy, Limits limits)
{
    const auto exchange = std::make_shared<Exchange>(*clock, proxy);
    QObject::connect(owner, &QObject::destroyed, exchange.get(), [raw = exchange.get()] {
        raw->end(ProbeError::Kind::cancelled, QStringLiteral("Cancelled."));
    });
    exchange->start(request);
    watchLimits(exchange, clock, limits);
    const ResumeOnce<ProbeResult> answer = exchange->answer();
    ProbeResult result = co_await answer;
    co_return result;
}

} // namespace

ExitCheckProbe::ExitCheckProbe(Clock &clock, QUrl url, quint16 socksPort, QSslConfiguration tls)
    : m_clock(clock),
      m_url(std::move(url)),
      m_socksPort(socksPort),
      m_tls(std::move(tls))
{
    if (!m_url.isValid() || m_url.scheme() != u"https")
        qFatal("The exit-check URL is not usable");
}

QCoro::Task<ProbeResult> ExitCheckProbe::viaTor()
{
    QNetworkProxy proxy(QNetworkProxy::Socks5Proxy, QStringLiteral("127.0.0.1"), m_socksPort);
    proxy.setCapabilities(QNetworkProxy::TunnelingCapability
                          | QNetworkProxy::HostNameLookupCapability);
    return fetch(&m_clock, &m_lifetime, privateRequest(m_url, m_tls), proxy, torLimits);
}

QCoro::Task<ProbeResult> ExitCheckProbe::direct()
{
    return fetch(&m_clock, &m_lifetime, privateRequest(m_url, m_tls),
                 QNetworkProxy(QNetworkProxy::NoProxy), directLimits);
}

} // namespace veldmark
