// The input of a download: the release index, GnuPG's verdict, tar's listing, a transport program's
// own output. tar's second listing follows an empty line.
#include "fuzz/Require.h"

#include "bridges/BundleArchive.h"
#include "bridges/ManagedProxy.h"
#include "bridges/ReleaseIndex.h"

using namespace veldmark;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    if (const auto version = latestVersion(bytes)) {
        REQUIRE(isPrintableWord(*version) && version->size() <= 40);
        REQUIRE(!version->contains(u'/') && !version->contains(QStringLiteral("..")));
    }
    const QString fingerprint = QStringLiteral("EF6E286DDA85EA2A4BA7DE684E2C6E8793298290");
    if (signatureTime(QString::fromUtf8(bytes), fingerprint))
        REQUIRE(bytes.contains("VALIDSIG") && bytes.contains(fingerprint.toLatin1()));

    const qsizetype cut = bytes.indexOf("\n\n");
    const QByteArray names = cut < 0 ? bytes : bytes.first(cut + 1);
    const QByteArray details = cut < 0 ? QByteArray() : bytes.sliced(cut + 2);
    if (!listingProblem(names, details)) {
        for (const QByteArray &name : names.split('\n'))
            REQUIRE(!name.startsWith('/') && !name.split('/').contains(".."));
    }
    for (const QString &transport : announcedTransports(bytes))
        REQUIRE(!transport.contains(u' ') && !transport.contains(u'\n'));
    isAnnouncementComplete(bytes);
    return 0;
}
