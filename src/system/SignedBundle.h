#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace veldmark {

struct PlatformProfile;
struct ProgramApproval;

// The parts of the downloaded bundle that root needs to verify it too: the archive, its signature,
// and the signer's key. The helper trusts them only after gpgv has verified them
// (resources/helper/linux-bundle.sh). A transport that it finds in the archive then runs without an
// administrator's approval. Linux only: macOS has no gpgv. Any thread; reads files.
struct SignedBundle {
    // The helper's limits. Larger files are not kept.
    static constexpr qint64 archiveLimitBytes = 100'000'000;
    static constexpr qint64 keyLimitBytes = 262'144; // also for the signature

    // Whether this system has the gpgv that the helper runs.
    static bool isOfUse(const PlatformProfile &profile);

    // Their paths below the bundle's folder.
    static QString archiveBelow(const QString &folder);
    static QString signatureOf(const QString &archive);
    static QString keyOf(const QString &archive);

    // The additional words of a connect, so that the helper needs no approval for these programs:
    // the option and the archive. Empty when none of them is in a bundle with all parts kept, or
    // when this system has no gpgv.
    static QStringList words(const PlatformProfile &profile,
                             const std::vector<ProgramApproval> &missing);
    // Whether the program is a transport of the bundle, judged by its path.
    static bool brings(const PlatformProfile &profile, const ProgramApproval &program);
};

} // namespace veldmark
