#pragma once

#include "log/TorLogLine.h"
#include "platform/PlatformProfile.h"

namespace veldmark {

// Reads the files that Tor's start, Tor itself and the service launcher write into the run
// directory, and merges them into one list. The files are the only source. They may rotate, shrink
// or not be regular files at any time; no call here blocks on them.
class TorLog {
public:
    static constexpr qint64 fileLimitBytes = 1000000; // only the end of a longer file is read
    // only the last lines of the merged list are kept
    static constexpr int lineLimit = 3000;

    class Snapshot {
    public:
        enum class Kind {
            lines,      // at least one
            empty,      // no file, or no line in any file
            unreadable, // files exist, but none can be opened
        };

        Snapshot() = default;                        // empty
        static Snapshot of(QList<TorLogLine> lines); // `empty` without lines
        static Snapshot unreadable();

        Kind kind() const { return m_kind; }
        const QList<TorLogLine> &lines() const { return m_lines; } // empty unless `lines`

        friend bool operator==(const Snapshot &, const Snapshot &) = default;

    private:
        Kind m_kind = Kind::empty;
        QList<TorLogLine> m_lines;
    };

    explicit TorLog(const PlatformProfile &profile);

    const QString &runDirectory() const { return m_runDirectory; }
    QString startupPath() const;  // Tor's output while it starts
    QString noticesPath() const;  // Tor's own log
    QString launcherPath() const; // the output that the service launcher captured

    // Changes when the size or the modification time of a file changes. Costs three stat calls.
    QString signature() const;

    // Start-up lines that Tor did not also log, then Tor's log, then the launcher's lines with its
    // prefix. Invalid UTF-8 is replaced; surrounding white space and empty lines are dropped. A
    // path that is not a regular file counts as a file that can't be opened.
    Snapshot read() const;

private:
    QString m_runDirectory;
    QString m_launcherOutput;
    QString m_launcherPrefix;
};

} // namespace veldmark
