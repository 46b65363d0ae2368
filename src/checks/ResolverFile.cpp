#include "checks/ResolverFile.h"

#include <QFile>
#include <QHostAddress>

#include <algorithm>

#include <arpa/inet.h>
#include <fcntl.h>
#include <net/if.h>
#include <sys/stat.h>
#include <unistd.h>

namespace veldmark {

namespace {

// Whether `text` is valid after the "%" of an address: a network interface's name or number. The
// user sees it.
bool isScope(const QByteArray &text)
{
    return !text.isEmpty() && text.size() < IFNAMSIZ
        && std::all_of(text.begin(), text.end(),
                       [](char c) { return c > ' ' && c <= '~' && c != '%' && c != '/'; });
}

// IPv4 in every form that inet_aton accepts ("127.1"), IPv6 with an optional scope; otherwise
// empty.
QString canonicalAddress(const QByteArray &word)
{
    in_addr ipv4;
    if (::inet_aton(word.constData(), &ipv4) != 0)
        return QHostAddress(ntohl(ipv4.s_addr)).toString();
    const qsizetype percent = word.indexOf('%');
    in6_addr ipv6;
    const QByteArray address6 = percent < 0 ? word : word.left(percent);
    if (::inet_pton(AF_INET6, address6.constData(), &ipv6) != 1)
        return {};
    QHostAddress address(reinterpret_cast<const quint8 *>(&ipv6));
    // The C library uses the server even when the scope is invalid.
    if (const QByteArray scope = percent < 0 ? QByteArray() : word.mid(percent + 1); isScope(scope))
        address.setScopeId(QString::fromLatin1(scope));
    return address.toString();
}

QStringList texts(const QList<QByteArray> &words)
{
    QStringList list;
    for (const QByteArray &word : words)
        list.append(QString::fromUtf8(word));
    return list;
}

} // namespace

ResolverFile ResolverFile::parse(const QByteArray &text)
{
    ResolverFile file;
    for (const QByteArray &line : text.split('\n')) {
        if (line.isEmpty() || line.front() == ' ' || line.front() == '\t')
            continue;
        // Comments need no special case: no keyword starts with their characters.
        QList<QByteArray> words = line.simplified().split(' ');
        const QByteArray keyword = words.takeFirst();
        if (words.isEmpty())
            continue;
        if (keyword == "nameserver") {
            const QString address = canonicalAddress(words.constFirst());
            if (!address.isEmpty() && file.nameservers.size() < serverLimit)
                file.nameservers.append(address);
        } else if (keyword == "search") {
            file.search = texts(words);
        } else if (keyword == "domain") {
            file.search = texts(words.mid(0, 1));
        } else if (keyword == "options") {
            file.options += texts(words);
        } else if (keyword == "sortlist") {
            file.sortlist = texts(words);
        }
    }
    return file;
}

QByteArray ResolverFile::read(const QString &path)
{
    // A pipe in place of the file must not block the program.
    const int descriptor = ::open(QFile::encodeName(path).constData(),
                                  O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0)
        return {};
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered,
                   QFile::AutoCloseHandle)) {
        ::close(descriptor);
        return {};
    }
    struct stat status { };
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    return file.read(sizeLimitBytes);
}

std::vector<DNSResolver> ResolverFile::resolvers() const
{
    if (nameservers.isEmpty())
        return {};
    DNSResolver resolver;
    resolver.nameservers = nameservers;
    return {resolver};
}

} // namespace veldmark
