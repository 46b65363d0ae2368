// Short answers from elsewhere: the exit-check service, the root helper's complaints, and the
// arguments of veldmarkctl.
#include "fuzz/Require.h"

#include "checks/IPCheck.h"
#include "cli/Arguments.h"
#include "system/PrivilegedRunner.h"

using namespace veldmark;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    // shown to the user, so nothing but an address
    if (const auto answer = IPCheck::fromJson(bytes)) {
        REQUIRE(isPrintableWord(answer->ip) && answer->ip.size() <= 45);
        for (const QChar c : answer->ip)
            REQUIRE(c == u'.' || c == u':' || QStringLiteral("0123456789abcdefABCDEF").contains(c));
    }
    const QString text = QString::fromUtf8(bytes);
    PrivilegedRunner::cleanError(text);

    // One word of the shell that runs what osascript is told, whatever the word holds.
    const QString quoted = shellQuoted(text);
    REQUIRE(QString(quoted).replace(QStringLiteral("'\\''"), QString()).count(u'\'') == 2);

    const auto invocation = parseArguments(text.split(u'\n'));
    if (!invocation)
        REQUIRE(!invocation.error().isEmpty());
    return 0;
}
