// Tor's output on its control port: bytes to lines and replies, replies to values.
#include "fuzz/Require.h"

#include "control/ControlPort.h"
#include "control/ReplyFraming.h"

using namespace veldmark;

namespace {

struct Framed {
    std::vector<QStringList> replies;
    bool failed = false;
    friend bool operator==(const Framed &, const Framed &) = default;
};

// `step` bytes at a time.
Framed framed(const QByteArray &bytes, qsizetype step)
{
    ReplyFraming framing;
    Framed all;
    for (qsizetype at = 0; at < bytes.size() && !all.failed; at += step) {
        framing.feed(QByteArrayView(bytes).sliced(at, std::min(step, bytes.size() - at)));
        for (;;) {
            const auto reply = framing.nextReply();
            if (!reply)
                all.failed = true;
            if (!reply || !*reply)
                break;
            all.replies.push_back(**reply);
        }
    }
    return all;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray bytes = bytesOf(data + 1, size - 1);
    const Framed whole = framed(bytes, std::max<qsizetype>(bytes.size(), 1));
    REQUIRE(framed(bytes, 1 + data[0] % 16) == whole);
    for (const QStringList &reply : whole.replies) {
        REQUIRE(!reply.isEmpty() && reply.constLast().size() >= 4
                && reply.constLast().at(3) == u' ');
        ControlPort::getInfoValues(reply);
        for (const QString &line : ControlPort::dataBlock(QStringLiteral("circuit-status"), reply))
            REQUIRE(!line.contains(QStringLiteral("\r\n")));
        for (const QString &host : ControlPort::resolvedHosts(reply))
            REQUIRE(host == host.toLower());
    }
    return 0;
}
