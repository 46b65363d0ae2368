#pragma once

#include "base/Text.h"

#include <utility>

namespace veldmark {

// Why the transport programs could not be downloaded and installed. The description is the sentence
// for the user.
class DownloadError {
public:
    enum class Kind {
        http,          // the server's status was no success
        badVersion,    // the index names no valid version
        badSignature,  // the Tor Project's signature could not be verified
        extractFailed, // the archive cannot or must not be unpacked
        rollback,      // older than the installed bundle, or not the announced version
        other,         // network, disk, or the user's cancel; the description says which
    };

    // item: what was requested, as in "Download of the archive failed".
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
