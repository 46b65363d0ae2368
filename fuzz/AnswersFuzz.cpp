// Short texts from outside: the exit-check service's answer, the root helper's errors, and
// veldmarkctl's arguments.
#include "fuzz/Require.h"

#include "checks/IPCheck.h"
#include "cli/Arguments.h"
#include "system/PrivilegedRunner.h"

using namespace veldmark;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    // shown to the user, so it must be an address
    if (const auto answer = IPCheck::fromJson(bytes)) {
        REQUIRE(isPrintableWord(answer->ip) && answer->ip.size() <= 45);
        for (const QChar c : answer->ip)
            REQUIRE(c == u'.' || c == u':' || QStringLiteral("0123456789abcdefABCDEF").contains(c));
    }
    const QString text = QString::fromUtf8(bytes);
    PrivilegedRunner::cleanError(text);

    // Any text stays one word of the shell command for osascript.
    const QString quoted = shellQuoted(text);
    REQUIRE(QString(quoted).replace(QStringLiteral("'\\''"), QString()).count(u'\'') == 2);

    const auto invocation = parseArguments(text.split(u'\n'));
    if (!invocation)
        REQUIRE(!invocation.error().isEmpty());
    return 0;
}
