#include "checks/ResolverSource.h"

#include "checks/DNSCheck.h"

#include <QDir>
#include <QFileInfo>

namespace veldmark {

namespace {

const QStringList resolvedAddresses{QStringLiteral("127.0.0.53"), QStringLiteral("127.0.0.54")};

// Resolves links, also a link whose target does not exist.
QString whereItIs(const QString &path)
{
    const QFileInfo info(path);
    const QString canonical = info.canonicalFilePath();
    if (!canonical.isEmpty())
        return canonical;
    return info.isSymLink() ? QDir::cleanPath(info.symLinkTarget()) : path;
}

} // namespace

bool resolvedServes(const QString &target, const ResolverFile &file)
{
    if (target.contains(QStringLiteral("/run/systemd/resolve/")))
        return true;
    for (const QString &address : resolvedAddresses) {
        if (file.nameservers.contains(address))
            return true;
    }
    return false;
}

std::vector<DNSResolver> joinResolvers(const ResolverFile &file,
                                       const std::optional<ResolvedState> &resolved)
{
    std::vector<DNSResolver> joined;
    QStringList named = resolvedAddresses;
    if (resolved) {
        joined = resolved->resolvers();
        for (const DNSResolver &resolver : joined)
            named += resolver.nameservers;
    }
    for (DNSResolver resolver : file.resolvers()) {
        resolver.nameservers.removeIf(
            [&named](const QString &server) { return named.contains(server); });
        if (!resolver.nameservers.isEmpty())
            joined.push_back(resolver);
    }
    return joined;
}

LinuxResolverSource::LinuxResolverSource(Clock &clock, QString resolverFile)
    : m_resolverFile(std::move(resolverFile)),
      m_bus(clock)
{
}

QCoro::Task<SystemResolvers> LinuxResolverSource::resolvers()
{
    const ResolverFile file = ResolverFile::parse(ResolverFile::read(m_resolverFile));
    if (!resolvedServes(whereItIs(m_resolverFile), file))
        co_return SystemResolvers{joinResolvers(file, std::nullopt)};
    auto reading = m_bus.read();
    const std::optional<ResolvedState> resolved = co_await reading;
    co_return SystemResolvers{joinResolvers(file, resolved), resolved.has_value()};
}

ScutilResolverSource::ScutilResolverSource(Run run) : m_run(std::move(run)) { }

QCoro::Task<SystemResolvers> ScutilResolverSource::resolvers()
{
    auto running = m_run();
    const QString text = co_await running;
    co_return SystemResolvers{DNSCheck::parse(text), !text.isEmpty()};
}

} // namespace veldmark
