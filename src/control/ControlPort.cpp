#include "control/ControlPort.h"

#include "base/ReplyWords.h"
#include "control/ControlConnection.h"

#include <algorithm>

namespace veldmark {

namespace {

using Milliseconds = std::chrono::milliseconds;

const QString hearStreamsCommand = QStringLiteral("SETEVENTS STREAM");
constexpr uid_t nobody = static_cast<uid_t>(-1); // no process can have it

// The resources of one operation while it runs: its connection and its time limit.
class Session {
public:
    Session(Clock &clock, quint16 port, const ControlPort::TorUser &torUser,
            const QObject &lifetime, std::shared_ptr<ControlTraffic> traffic, Milliseconds limit)
        : m_connection(std::make_unique<ControlConnection>(
            port, QHostAddress(QHostAddress::LocalHost),
            torUser ? std::optional(torUser().value_or(nobody)) : std::nullopt)),
          m_watched(std::make_shared<const std::monostate>())
    {
        ControlConnection *connection = m_connection.get();
        connection->countIn(std::move(traffic));
        QObject::connect(&lifetime, &QObject::destroyed, connection,
                         [connection] { connection->abort(ControlPortError::closed()); });
        abortAfter(&clock, limit, connection, ControlPortError::timedOut(), m_watched);
    }

    ControlConnection *operator->() const { return m_connection.get(); }
    void liftLimit() { m_watched.reset(); }

private:
    std::unique_ptr<ControlConnection> m_connection;
    std::shared_ptr<const std::monostate> m_watched;
};

std::optional<ControlPortError> refusal(const QStringList &texts)
{
    if (std::all_of(texts.begin(), texts.end(), isSingleLine))
        return std::nullopt;
    return ControlPortError::malformed(
        Text::tr("A command to Tor can't contain a line break or a NUL."));
}

// Opens the session's connection, sends one command and returns its reply.
QCoro::Task<Result<QStringList, ControlPortError>> ask(const Session *session, QString password,
                                                       QString command)
{
    const auto opened = co_await (*session)->open(password);
    if (!opened)
        co_return Failure(opened.error());
    const auto reply = co_await (*session)->command(command);
    co_return reply;
}

// The host of "host:port" or "[IPv6]:port".
QString hostOf(const QString &target)
{
    const qsizetype bracket = target.indexOf(u']');
    if (target.startsWith(u'[') && bracket > 0)
        return target.mid(1, bracket - 1).toLower();
    const qsizetype colon = target.lastIndexOf(u':');
    return (colon >= 0 ? target.left(colon) : target).toLower();
}

} // namespace

ControlPort::ControlPort(Clock &clock, quint16 port, TorUser torUser)
    : m_clock(clock),
      m_port(port),
      m_torUser(std::move(torUser)),
      m_traffic(std::make_shared<ControlTraffic>())
{
}

ControlTraffic ControlPort::traffic() const
{
    return *m_traffic;
}

// The operations below may outlive their ControlPort, so none uses a member after its first wait.

ControlPort::Outcome<ControlPort::Values> ControlPort::getInfo(QStringList keys, QString password,
                                                               Milliseconds limit)
{
    const QString command = QStringLiteral("GETINFO ") + keys.join(u' ');
    if (const auto refused = refusal({command, password}))
        co_return Failure(*refused);
    const Session session(m_clock, m_port, m_torUser, m_lifetime, m_traffic, limit);
    const auto reply = co_await ask(&session, password, command);
    if (!reply)
        co_return Failure(reply.error());
    co_return getInfoValues(*reply);
}

ControlPort::Outcome<void> ControlPort::signal(QString name, QString password, Milliseconds limit)
{
    const QString command = QStringLiteral("SIGNAL ") + name;
    if (const auto refused = refusal({command, password}))
        co_return Failure(*refused);
    const Session session(m_clock, m_port, m_torUser, m_lifetime, m_traffic, limit);
    const auto reply = co_await ask(&session, password, command);
    if (!reply)
        co_return Failure(reply.error());
    co_return Result<void, ControlPortError>{};
}

ControlPort::Outcome<std::vector<std::optional<ControlPort::Reply>>> ControlPort::batch(
    QStringList commands, QString password, Milliseconds limit)
{
    if (const auto refused = refusal(commands + QStringList(password)))
        co_return Failure(*refused);
    const Session session(m_clock, m_port, m_torUser, m_lifetime, m_traffic, limit);
    const auto opened = co_await session->open(password);
    if (!opened)
        co_return Failure(opened.error());
    std::vector<std::optional<Reply>> replies;
    for (const QString &command : commands) {
        const auto reply = co_await session->command(command);
        if (reply)
            replies.emplace_back(*reply);
        else if (reply.error().kind() == ControlPortError::Kind::Tor)
            replies.emplace_back(std::nullopt);
        else
            co_return Failure(reply.error());
    }
    co_return replies;
}

ControlPort::Outcome<QStringList> ControlPort::captureResolves(QString password,
                                                               Milliseconds duration, Work work,
                                                               Milliseconds limit)
{
    if (const auto refused = refusal({password}))
        co_return Failure(*refused);
    Clock *clock = &m_clock;
    Session session(*clock, m_port, m_torUser, m_lifetime, m_traffic, limit);
    const auto subscribed = co_await ask(&session, password, hearStreamsCommand);
    if (!subscribed)
        co_return Failure(subscribed.error());
    // The port still exists, or the connection would be aborted; so the clock still exists.
    session.liftLimit();

    StopSource stop;
    const auto running = work(stop.get_token());
    const QStringList lines = co_await session->collectEvents(clock, duration);
    stop.request_stop();
    co_return resolvedHosts(lines);
}

ControlPort::Outcome<void> ControlPort::hearStreams(QString password, Hearer hear,
                                                    Milliseconds limit)
{
    if (const auto refused = refusal({password}))
        co_return Failure(*refused);
    Session session(m_clock, m_port, m_torUser, m_lifetime, m_traffic, limit);
    const auto subscribed = co_await ask(&session, password, hearStreamsCommand);
    if (!subscribed)
        co_return Failure(subscribed.error());
    session.liftLimit();
    for (;;) {
        const auto line = co_await session->nextLine();
        if (!line)
            co_return Failure(line.error());
        if (!hear(*line))
            co_return Result<void, ControlPortError>{};
    }
}

QStringList ControlPort::dataBlock(const QString &key, const Reply &lines)
{
    const QString block = QStringLiteral("250+") + key + u'=';
    const QString single = QStringLiteral("250-") + key + u'=';
    QStringList value;
    bool inBlock = false;
    for (const QString &line : lines) {
        if (inBlock) {
            if (line == QLatin1String("."))
                return value;
            value += line.startsWith(QLatin1String("..")) ? line.mid(1) : line;
        } else if (line.startsWith(block)) {
            inBlock = true;
            if (line.size() > block.size())
                value += line.mid(block.size());
        } else if (line.startsWith(single)) {
            if (line.size() > single.size())
                value += line.mid(single.size());
            return value;
        }
    }
    return value;
}

ControlPort::Values ControlPort::getInfoValues(const Reply &lines)
{
    Values values;
    for (const QString &line : lines) {
        const qsizetype equals = line.indexOf(u'=', 4);
        if (line.size() >= 5 && equals >= 0)
            values.insert(line.mid(4, equals - 4), line.mid(equals + 1));
    }
    return values;
}

QStringList ControlPort::resolvedHosts(const QStringList &lines)
{
    QStringList hosts;
    for (const QString &line : lines) {
        if (!line.startsWith(QLatin1String("650 STREAM "))
            || ReplyWords::value(line, u"PURPOSE") != QLatin1String("DNS_REQUEST"))
            continue;
        // 650 STREAM StreamID Status CircuitID Target …
        const QStringList words = line.split(u' ', Qt::SkipEmptyParts);
        if (words.size() >= 6)
            hosts += hostOf(words.at(5));
    }
    return hosts;
}

} // namespace veldmark
