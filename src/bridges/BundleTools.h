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

// Runs the external programs of one installation: GnuPG and tar. Each is killed, with its children,
// when its time limit by the clock is over. Belongs to the thread of the event loop. A run keeps
// the object alive, so the object is always held by a shared pointer.
class BundleTools {
public:
    static constexpr std::chrono::minutes gnupgLimit{2};
    static constexpr std::chrono::minutes unpackLimit{10};

    // The programs' paths; `gpg` is empty when GnuPG is missing. `runner` must live until forget();
    // without one no program is started. `clock` must live as long.
    BundleTools(QString tar, QString gpg, ProcessRunner *runner, Clock &clock);

    const QString &tar() const { return m_tar; }
    bool hasGnuPG() const { return !m_gpg.isEmpty(); }

    // Kills the running program. After it only endAgent() starts a program, and the errors say
    // "Cancelled.".
    void cancel();
    // The runner is about to be destroyed: no program is started any more.
    void forget() { m_runner = nullptr; }

    // Checks that the file `signature` signs the file `archive`, made by the key with this
    // fingerprint in the file `key`. Returns the time of the signature, as from signatureTime().
    // `home`: GnuPG's own folder, empty and private. An archive that fails is removed.
    static QCoro::Task<Result<qint64, DownloadError>> verify(std::shared_ptr<BundleTools> tools,
                                                             QString home, QString key,
                                                             QString signature, QString archive,
                                                             QString fingerprint);
    // Writes the key with this fingerprint, which verify() has imported into `home`, to `file`, in
    // the form that gpgv reads. `file` is missing after a failure.
    static QCoro::Task<void> exportKey(std::shared_ptr<BundleTools> tools, QString home,
                                       QString fingerprint, QString file);
    static QCoro::Task<Result<void, DownloadError>> unpack(std::shared_ptr<BundleTools> tools,
                                                           QString archive, QString folder);
    // Stops the agent that GnuPG may have started for its folder `home`.
    static QCoro::Task<void> endAgent(std::shared_ptr<BundleTools> tools, QString home);

private:
    // The program's result, or a sentence that says why there is none.
    using Run = Result<ProcessResult, Text>;
    // cancel() stops the program only when `current` is m_current.
    static QCoro::Task<Run> run(std::shared_ptr<BundleTools> tools, QString program,
                                QStringList arguments, std::chrono::milliseconds limit,
                                StopSource current);

    ProcessRunner *m_runner;
    Clock &m_clock;
    const QString m_tar;
    const QString m_gpg;
    StopSource m_current; // stops the program of verify(), exportKey() or unpack()
    bool m_isCancelled = false;
};

} // namespace veldmark
