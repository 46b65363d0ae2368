#pragma once

#include "base/Text.h"

#include <utility>

namespace veldmark {

// Why the transports' programs could not be downloaded and installed. The description is the
// sentence that the user reads.
class DownloadError {
public:
    enum class Kind {
        http,          // the server answered with another status than success
        badVersion,    // the index does not name a version
        badSignature,  // the archive is not what the Tor Project signed
        extractFailed, // the archive cannot be unpacked, or must not be
        rollback,      // it is older than what is installed, or not what was announced
        other,         // the network, the disk, or the user: in their own words
    };

    // item: what was asked for, as in "Download of the archive failed".
    static DownloadError http(int status, const Text &item);
    static DownloadError badVersion();
    static DownloadError badSignature(const Text &detail);
    static DownloadError extractFailed(const Text &detail);
    static DownloadError olderVersion(const QString &announced, const QString &installed);
    static DownloadError otherContent(const QString &announced);
    static DownloadError cancelled();
    static DownloadError other(const Text &text);

    Kind kind() const { return m_kind; }
    Text description() const { return m_description; }

private:
    DownloadError(Kind kind, Text description) : m_kind(kind), m_description(std::move(description))
    {
    }

    Kind m_kind;
    Text m_description;
};

} // namespace veldmark
