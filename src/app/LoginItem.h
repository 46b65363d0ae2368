#pragma once

#include "base/Result.h"
#include "base/Text.h"
#include "platform/PlatformProfile.h"

namespace veldmark {

// Whether the program starts when the user logs in: the desktop's autostart entry (LoginItem.cpp),
// or the system's list of login items (MacLoginItem.mm). Main thread.
class LoginItem {
public:
    explicit LoginItem(const PlatformProfile &profile) : m_path(profile.autostartFile) { }

    bool isSet() const;
    // Writes or removes the entry. Touches nothing when isSet() already equals `on`. The error is a
    // sentence for the user.
    Result<void, Text> set(bool on) const;
    // The desktop's entry for a program at `executable`, whose path is quoted as the format
    // requires. Not on macOS.
    static QString entry(const QString &executable);

private:
    QString m_path; // empty: this system keeps login items elsewhere
};

} // namespace veldmark
