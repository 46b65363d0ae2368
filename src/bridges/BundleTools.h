#pragma once

#include "base/Result.h"
#include "base/StopToken.h"
#include "base/Text.h"
#include "bridges/DownloadError.h"

#include <QString>
#include <QStringList>

#include <qcorotask.h>

#include <chrono>
#include <memory>

// Private to the room.
namespace veldmark {

class Clock;
class ProcessRunner;
struct ProcessResult;

// The outside programs of one installation: GnuPG and tar. Each is killed, with what it has
// started, when its time is over by the clock. Belongs to the thread of the event loop; a run under
// way keeps the object, so that it is always held by a shared pointer.
class BundleTools {
public:
    static constexpr std::chrono::minutes gnupgLimit{2};
    static constexpr std::chrono::minutes unpackLimit{10};

    // Paths of the programs; `gpg` is empty when there is none. `runner` must live until forget();
    // without one nothing is ever started. `clock` must live as long.
    BundleTools(QString tar, QString gpg, ProcessRunner *runner, Clock &clock);

    const QString &tar() const { return m_tar; }
    bool hasGnuPG() const { return !m_gpg.isEmpty(); }

    // What runs is killed, and nothing but endAgent() is started any more; the errors say
    // "Cancelled.".
    void cancel();
    // The runner is about to go: nothing is started any more.
    void forget() { m_runner = nullptr; }

    // Whether the file `signature` is of the file `archive`, made by the key with this fingerprint,
    // which the file `key` holds; when it was made, as signatureTime() tells. `home`: GnuPG's own
    // folder, empty and private. An archive that fails is removed.
    static QCoro::Task<Result<qint64, DownloadError>> verify(std::shared_ptr<BundleTools> tools,
                                                             QString home, QString key,
                                                             QString signature, QString archive,
                                                             QString fingerprint);
    // Writes the key with this fingerprint, which verify() has put into `home`, to `file`, in the
    // form that gpgv reads. The file is missing where that fails.
    static QCoro::Task<void> exportKey(std::shared_ptr<BundleTools> tools, QString home,
                                       QString fingerprint, QString file);
    static QCoro::Task<Result<void, DownloadError>> unpack(std::shared_ptr<BundleTools> tools,
                                                           QString archive, QString folder);
    // Ends the agent that GnuPG may have started for its folder `home`.
    static QCoro::Task<void> endAgent(std::shared_ptr<BundleTools> tools, QString home);

private:
    // The program's result, or why there is none, in a sentence.
    using Run = Result<ProcessResult, Text>;
    // cancel() ends the program only when it is told how by `current`.
    static QCoro::Task<Run> run(std::shared_ptr<BundleTools> tools, QString program,
                                QStringList arguments, std::chrono::milliseconds limit,
                                StopSource current);

    ProcessRunner *m_runner;
    Clock &m_clock;
    const QString m_tar;
    const QString m_gpg;
    StopSource m_current; // ends what verify(), exportKey() or unpack() has started
    bool m_isCancelled = false;
};

} // namespace veldmark
