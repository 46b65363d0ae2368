#pragma once

#include <QStringList>

#include <vector>

namespace veldmark {

struct PlatformProfile;

// A program that is to run as Tor's account although no package of the system brought it. The
// administrator is asked for it by path and digest, as it was read before the prompt, and the
// helper runs nothing else in its place.
struct ProgramApproval {
    QString path;
    QString role;   // the helper's word: "tor", "lyrebird", "snowflake-client", "webtunnel-client"
    QString digest; // SHA-256, in small hexadecimal digits

    // What the helper is asked.
    QStringList words() const;

    // Of the programs that a connect with these words names, those that an administrator has still
    // to approve. Reads such a program whole: some ten milliseconds.
    static std::vector<ProgramApproval> missing(const PlatformProfile &profile,
                                                const QStringList &words);
    // All of them that are not the system's own, also those of which root has a copy: the helper
    // runs no copy of a bundle that a newer one has replaced, and only root knows which those are.
    static std::vector<ProgramApproval> named(const PlatformProfile &profile,
                                              const QStringList &words);
};

} // namespace veldmark
