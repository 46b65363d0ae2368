#pragma once

#include "base/Text.h"
#include "system/ProcessRunner.h"

namespace veldmark {

// Why the helper failed.
class HelperError {
public:
    enum class Kind {
        Failed,        // it ran and failed, or had no right to run; the description has the reason
        MissingHelper, // there is no helper script
        // it needs an administrator's approval; the description names the subject
        Unapproved,
        UnapprovedProgram, // the approval that it needs is that of a program
        Cancelled,         // the user dismissed the authorisation dialog
        NotStarted,        // the program that gives it root rights could not be started
    };

    static HelperError failed(Text message); // message: already cleaned
    static HelperError unapproved(Text message);
    static HelperError unapprovedProgram(Text message);
    static HelperError missingHelper();
    static HelperError cancelled();
    static HelperError notStarted(const StartError &error);

    Kind kind() const { return m_kind; }
    // The sentence for the user.
    Text description() const { return m_description; }

private:
    HelperError(Kind kind, Text description);

    Kind m_kind;
    Text m_description;
};

} // namespace veldmark
