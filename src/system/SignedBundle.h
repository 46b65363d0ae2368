#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace veldmark {

struct PlatformProfile;
struct ProgramApproval;

// What is kept of the downloaded bundle so that root can verify it as well: the archive, its
// signature, and the key of whoever has signed it. The helper believes none of them before gpgv has
// told it so (resources/helper/linux-bundle.sh); a transport that it finds in the archive then runs
// without an administrator's approval. Linux only: a Mac has no gpgv. Any thread; looks at files.
struct SignedBundle {
    // As the helper has them. What is larger is not kept.
    static constexpr qint64 archiveLimitBytes = 100'000'000;
    static constexpr qint64 keyLimitBytes = 262'144; // of the signature as well

    // Whether this system has the gpgv that the helper runs.
    static bool isOfUse(const PlatformProfile &profile);

    // Where they lie below the bundle's folder.
    static QString archiveBelow(const QString &folder);
    static QString signatureOf(const QString &archive);
    static QString keyOf(const QString &archive);

    // What a connect says to the helper besides, so that it need not ask for one of these programs:
    // the option and the archive. Nothing where none of them lies in a bundle of which everything
    // was kept, or where this system has no gpgv.
    static QStringList words(const PlatformProfile &profile,
                             const std::vector<ProgramApproval> &missing);
    // Whether the program is a transport of the bundle's, as far as its path tells.
    static bool brings(const PlatformProfile &profile, const ProgramApproval &program);
};

} // namespace veldmark
