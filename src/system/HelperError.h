#pragma once

#include "base/Text.h"
#include "system/ProcessRunner.h"

namespace veldmark {

// Why the helper did not do what it was asked.
class HelperError {
public:
    enum class Kind {
        Failed,        // it ran, or was refused the right to; the description says why
        MissingHelper, // there is no script to run
        // it needs an administrator's approval that it was not given; the description says of what
        Unapproved,
        Cancelled,  // the user dismissed the authorisation dialog
        NotStarted, // the program that gives it its rights could not be started
    };

    static HelperError failed(Text message); // message: already cleaned
    static HelperError unapproved(Text message);
    static HelperError missingHelper();
    static HelperError cancelled();
    static HelperError notStarted(const StartError &error);

    Kind kind() const { return m_kind; }
    // The sentence that the user reads.
    Text description() const { return m_description; }

private:
    HelperError(Kind kind, Text description);

    Kind m_kind;
    Text m_description;
};

} // namespace veldmark
