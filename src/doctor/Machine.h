#pragma once

#include "base/Text.h"
#include "bridges/BridgePlan.h"
#include "platform/PlatformProfile.h"

#include <QDateTime>
#include <QSet>

#include <functional>
#include <optional>
#include <vector>

#include <sys/types.h>

namespace veldmark {

// The owner of a file and its permissions.
struct FileOwner {
    uid_t user = 0;
    mode_t mode = 0;
};

// The examined data: the files below the profile's root, also /proc and /sys, and facts that files
// do not tell. A test creates the files in a temporary folder and sets the other fields.
struct Machine {
    PlatformProfile profile;
    QString customTor;              // the location of tor in the settings; empty: the usual places
    QString exitCountry;            // in the settings; empty: any
    BridgeRequest bridges;          // the choice in the settings
    PluggableTransports transports; // the transports found

    uid_t user = 0;          // the account of this process
    bool hasDesktop = false; // a display that can show a password dialog
    QDateTime now;           // according to the computer's clock
    // whether the kernel counts the clock as synchronised; absent: unknown
    std::optional<bool> clockIsSet;
    // The output of tor's version option; absent when tor failed.
    std::optional<QString> torVersion;
    bool isTorUnasked = false; // this is root, and others can change tor, so it was not run
    // Only as root: the error of `nft list tables`, empty without one. Absent: not run.
    std::optional<Text> firewallComplaint;
    std::function<std::optional<FileOwner>(const QString &path)> owner;

    bool isLinux() const { return profile.promptKind == PromptKind::PolicyKit; }
    QString at(const char *path) const { return profile.places.root + QLatin1String(path); }
    bool exists(const char *path) const;
    QString read(const char *path) const { return readFile(at(path)); }
    // The first 256 kB; empty when it cannot be read.
    static QString readFile(const QString &path);

    // The path of a system program, or empty.
    QString program(const QString &name) const;
    // The tor that a connect would run, or empty.
    QString tor() const;
    // The command that installs a package on this distribution; empty when unknown.
    QString installing(const QString &package) const;
    // The number of an account, and its name.
    std::optional<uid_t> account(const QString &name) const;
    QString accountName(uid_t wanted) const;
    bool isPasswordless() const;
};

// A process according to /proc.
struct RunningProcess {
    qint64 pid = 0;
    QString name; // at most 15 characters; printable ones only
    uid_t user = 0;
    QString unit; // systemd's unit, "tor@default.service", or empty
};

std::vector<RunningProcess> runningProcesses(const Machine &machine);
bool runs(const std::vector<RunningProcess> &processes, const QString &name);

} // namespace veldmark
