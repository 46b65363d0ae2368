#pragma once

#include "checks/ResolvedBus.h"
#include "checks/ResolverFile.h"

#include <functional>

namespace veldmark {

// The system's name servers.
struct SystemResolvers {
    std::vector<DNSResolver> resolvers;
    bool isComplete = true; // false: the service that knows the others did not answer
};

// The source of the system's name servers. Never fails: an unreadable file is empty.
class ResolverSource {
public:
    ResolverSource() = default;
    virtual ~ResolverSource() = default;
    ResolverSource(const ResolverSource &) = delete;
    ResolverSource &operator=(const ResolverSource &) = delete;

    virtual QCoro::Task<SystemResolvers> resolvers() = 0;
};

// True when systemd-resolved answers lookups that follow the resolver file: the file lies in its
// run folder, or names one of its addresses. `target` is the file's real path.
bool resolvedServes(const QString &target, const ResolverFile &file);

// Joins the file's servers with systemd-resolved's (absent when it does not serve the file or does
// not answer). Resolved's own addresses in the file are dropped, because its upstream servers count
// instead. Servers that only the file names come last.
std::vector<DNSResolver> joinResolvers(const ResolverFile &file,
                                       const std::optional<ResolvedState> &resolved);

// Linux: systemd-resolved when it serves the resolver file, otherwise the file.
class LinuxResolverSource final : public ResolverSource {
public:
    // `clock` must outlive the object and its readings.
    LinuxResolverSource(Clock &clock, QString resolverFile);

    QCoro::Task<SystemResolvers> resolvers() override;

private:
    const QString m_resolverFile;
    ResolvedBus m_bus;
};

// macOS: the output of `scutil --dns`.
class ScutilResolverSource final : public ResolverSource {
public:
    // Runs the program and returns its standard output; empty when it can't run.
    using Run = std::function<QCoro::Task<QString>()>;
    explicit ScutilResolverSource(Run run);

    QCoro::Task<SystemResolvers> resolvers() override;

private:
    const Run m_run;
};

} // namespace veldmark
