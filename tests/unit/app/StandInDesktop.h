#pragma once

#include "base/Text.h"

#include <QList>
#include <QStringList>

#include <functional>
#include <optional>
#include <utility>

namespace veldmark {

// Stands in for the desktop behind app/Activation.h, as a Mac's: the test program has these
// functions in place of the system's own. A test that wants to be the desktop makes an object of
// it. Without one nothing is asked, as on Linux.
struct StandInDesktop {
    StandInDesktop() { present = this; }
    ~StandInDesktop() { present = nullptr; }
    StandInDesktop(const StandInDesktop &) = delete;

    // Tells the program why it was started.
    void tellLaunch(bool atLogin)
    {
        m_hasTold = true;
        std::exchange(launched, nullptr)(atLogin);
    }
    // The user opens the running program again. A Mac's AppKit answers that itself until the
    // program has been told why it was started.
    bool reopen() const
    {
        if (!m_hasTold || !reopened)
            return false;
        reopened();
        return true;
    }
    // Asks the program to end, and waits.
    void askToEnd()
    {
        waits = true;
        askedToEnd();
    }

    std::optional<Text> misplaced;
    std::function<void(bool)> launched;
    std::function<void()> reopened;
    std::function<void()> askedToEnd;
    bool waits = false;
    std::optional<bool> ends; // the program's last answer
    QList<bool> awake;        // each change
    QStringList notices;      // their titles

    static inline StandInDesktop *present = nullptr;

private:
    bool m_hasTold = false;
};

} // namespace veldmark
