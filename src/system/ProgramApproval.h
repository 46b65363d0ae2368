#pragma once

#include <QStringList>

#include <vector>

namespace veldmark {

struct PlatformProfile;

// A program that runs in Tor's account although no system package installed it. The administrator
// approves its path and digest, read before the prompt. The helper runs no other file in its place.
struct ProgramApproval {
    QString path;
    QString role;   // the helper's word: "tor", "lyrebird", "snowflake-client", "webtunnel-client"
    QString digest; // SHA-256, in lower-case hexadecimal digits

    // The words of the request to the helper.
    QStringList words() const;

    // The programs named in a connect's `words` that an administrator must still approve. Reads
    // each of them completely, in some ten milliseconds.
    static std::vector<ProgramApproval> missing(const PlatformProfile &profile,
                                                const QStringList &words);
    // All of them that are not the system's own, also those of which root has a copy. The helper
    // runs no copy from a bundle that a newer one has replaced, and only root knows which copies
    // those are.
    static std::vector<ProgramApproval> named(const PlatformProfile &profile,
                                              const QStringList &words);
};

} // namespace veldmark
