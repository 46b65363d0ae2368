// The system's resolvers, from scutil and /etc/resolv.conf.
#include "fuzz/Require.h"

#include "checks/DNSCheck.h"
#include "checks/ResolverFile.h"

#include <QHostAddress>
#include <QSet>

using namespace veldmark;

namespace {

void requireLeaks(const std::vector<DNSResolver> &resolvers)
{
    QSet<QString> summaries;
    for (const DNSResolver &leak : DNSCheck::leaks(resolvers)) {
        REQUIRE(!leak.isMDNS && !leak.nameservers.isEmpty());
        for (const QString &server : leak.nameservers)
            REQUIRE(!DNSCheck::torResolvers().contains(server));
        REQUIRE(!summaries.contains(leak.summary()));
        summaries.insert(leak.summary());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    requireLeaks(DNSCheck::parse(QString::fromUtf8(bytes)));

    const ResolverFile file = ResolverFile::parse(bytes);
    REQUIRE(file.nameservers.size() <= ResolverFile::serverLimit);
    for (const QString &server : file.nameservers) {
        REQUIRE(isPrintableWord(server));
        REQUIRE(!QHostAddress(server).isNull());
    }
    requireLeaks(file.resolvers());
    return 0;
}
