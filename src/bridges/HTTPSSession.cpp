#include "bridges/HTTPSSession.h"

#include "base/PrivateRequest.h"
#include "base/ResumeOnce.h"

#include <QFile>
#include <QNetworkProxy>
#include <QNetworkReply>

#include <algorithm>

using namespace std::chrono_literals;

namespace veldmark {

namespace {

constexpr std::chrono::milliseconds idleLimit = 60s;
constexpr std::chrono::milliseconds totalLimit = 900s;
constexpr int redirectLimit = 5;
constexpr int success = 200;

using Outcome = Result<QByteArray, DownloadError>;

} // namespace

// One request and its outcome. Owned by the coroutine that waits for the answer. That coroutine is
// resumed through the event loop, so the reply is never deleted inside one of its own signals.
class HTTPSSession::Exchange : public QObject {
public:
    Exchange(Clock &clock, Fetch what) : m_clock(clock), m_what(std::move(what)) { }
    ~Exchange() override { end(DownloadError::cancelled()); }

    void start(QNetworkAccessManager &access, const QNetworkRequest &request)
    {
        noteActivity();
        if (!m_what.file.isEmpty()) {
            m_file.setFileName(m_what.file);
            if (!m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly,
                             QFile::ReadOwner | QFile::WriteOwner)) {
                endUnwritten();
                return;
            }
        }
        m_reply.reset(access.get(request));
        QNetworkReply *reply = m_reply.get();
        connect(reply, &QNetworkReply::encrypted, this, &Exchange::noteActivity);
        connect(reply, &QNetworkReply::redirected, this, &Exchange::noteActivity);
        connect(reply, &QNetworkReply::metaDataChanged, this, &Exchange::noteActivity);
        connect(reply, &QNetworkReply::readyRead, this, &Exchange::readBody);
        connect(reply, &QNetworkReply::finished, this, &Exchange::readEnd);
    }

    void cancel() { end(DownloadError::cancelled()); }
    void timeOut() { end(DownloadError::other(Text::tr("The request timed out."))); }

    const ResumeOnce<Outcome> &answer() const { return m_answer; }
    Clock::TimePoint lastActivity() const { return m_lastActivity; }

private:
    void noteActivity() { m_lastActivity = m_clock.now(); }

    int status() const
    {
        return m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    }

    // -1 when the server does not tell the size.
    qint64 total() const
    {
        const QVariant length = m_reply->header(QNetworkRequest::ContentLengthHeader);
        return length.isValid() ? length.toLongLong() : -1;
    }

    void readBody()
    {
        noteActivity();
        if (status() != success)
            return; // an error page, which readEnd() reports
        if (total() > m_what.limitBytes) {
            endTooLong();
            return;
        }
        // Reading one byte more than the limit detects a body that is too long.
        const QByteArray part = m_reply->read(m_what.limitBytes + 1 - m_received);
        m_received += part.size();
        if (m_received > m_what.limitBytes) {
            endTooLong();
            return;
        }
        if (!m_file.isOpen())
            m_body += part;
        else if (m_file.write(part) != part.size()) {
            endUnwritten();
            return;
        }
        if (m_what.progress)
            m_what.progress(m_received, total());
    }

    void readEnd()
    {
        const QNetworkReply::NetworkError error = m_reply->error();
        if (status() != 0 && status() != success) {
            end(DownloadError::http(status(), m_what.item));
        } else if (error != QNetworkReply::NoError) {
            end(DownloadError::other(m_reply->errorString()));
        } else if (status() != success) {
            end(DownloadError::other(Text::tr("The server gave no HTTP answer.")));
        } else {
            readBody();
            if (m_answer.isDone())
                return;
            if (total() >= 0 && m_received != total())
                end(DownloadError::other(
                    Text::tr("The connection was lost before the download ended.")));
            else if (m_file.isOpen() && !m_file.flush())
                endUnwritten();
            else
                finish(m_body);
        }
    }

    void endTooLong()
    {
        end(DownloadError::other(
            Text::tr("The server sent more than %1 can be.").arg(m_what.item)));
    }

    void endUnwritten()
    {
        end(DownloadError::other(
            Text::tr("Couldn't write %1: %2.").arg(m_what.file, m_file.errorString())));
    }

    void end(DownloadError error) { finish(Failure(std::move(error))); }

    void finish(Outcome outcome)
    {
        // The exchange is soon destroyed, which aborts the reply.
        if (m_answer.complete(std::move(outcome)) && m_reply)
            m_reply->disconnect(this);
    }

    Clock &m_clock;
    const Fetch m_what;
    std::unique_ptr<QNetworkReply> m_reply;
    QFile m_file;
    ResumeOnce<Outcome> m_answer;
    QByteArray m_body;
    qint64 m_received = 0;
    Clock::TimePoint m_lastActivity;
};

HTTPSSession::HTTPSSession(Clock &clock, std::optional<quint16> socksPort, QSslConfiguration tls)
    : m_clock(clock),
      m_tls(std::move(tls))
{
    QNetworkProxy proxy(QNetworkProxy::NoProxy);
    if (socksPort) {
        proxy = QNetworkProxy(QNetworkProxy::Socks5Proxy, QStringLiteral("127.0.0.1"), *socksPort);
        proxy.setCapabilities(QNetworkProxy::TunnelingCapability
                              | QNetworkProxy::HostNameLookupCapability);
    }
    m_access.setProxy(proxy);
    m_access.setRedirectPolicy(QNetworkRequest::NoLessSafeRedirectPolicy);
    m_access.setAutoDeleteReplies(false);
}

HTTPSSession::~HTTPSSession() = default;

void HTTPSSession::cancel()
{
    m_isCancelled = true;
    m_cancelling.setObjectName(QStringLiteral("cancelled"));
}

// Checks that the exchange still exists before each use. It is gone when the answer came in time,
// and then the clock may be gone, too.
QCoro::Task<void> HTTPSSession::watchLimits(std::weak_ptr<Exchange> watched, Clock *clock)
{
    const Clock::TimePoint lastMoment = clock->now() + totalLimit;
    Clock::TimePoint now = clock->now();
    Clock::TimePoint deadline = now + idleLimit;
    for (;;) {
        const Clock::TimePoint wakeUp = deadline;
        const auto pause = std::chrono::ceil<std::chrono::milliseconds>(wakeUp - now);
        co_await clock->sleep(pause);
        const std::shared_ptr<Exchange> exchange = watched.lock();
        if (!exchange || exchange->answer().isDone())
            co_return;
        now = clock->now();
        deadline = std::min(lastMoment, exchange->lastActivity() + idleLimit);
        // Resumed too early: the clock is being destroyed.
        if (deadline <= now || now < wakeUp) {
            exchange->timeOut();
            co_return;
        }
    }
}

QCoro::Task<Result<QByteArray, DownloadError>> HTTPSSession::fetch(
    std::shared_ptr<HTTPSSession> session, Fetch what)
{
    if (session->m_isCancelled)
        co_return Failure(DownloadError::cancelled());
    QNetworkRequest request = privateRequest(what.url, session->m_tls);
    request.setMaximumRedirectsAllowed(redirectLimit);

    const auto exchange = std::make_shared<Exchange>(session->m_clock, what);
    QObject::connect(&session->m_cancelling, &QObject::objectNameChanged, exchange.get(),
                     &Exchange::cancel);
    exchange->start(session->m_access, request);
    watchLimits(exchange, &session->m_clock);
    const ResumeOnce<Outcome> answer = exchange->answer();
    Outcome outcome = co_await answer;
    co_return outcome;
}

} // namespace veldmark
