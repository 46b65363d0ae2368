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

// Who owns a file and who may write it.
struct FileOwner {
    uid_t user = 0;
    mode_t mode = 0;
};

// What is looked at: the files below the profile's root, /proc and /sys among them, and what cannot
// be read from files. A test lays the files out in a temporary folder and fills in the rest.
struct Machine {
    PlatformProfile profile;
    QString customTor;              // the settings' location of tor; empty: the usual places
    BridgeRequest bridges;          // the settings' choice
    PluggableTransports transports; // what was found

    uid_t user = 0;          // who runs this program
    bool hasDesktop = false; // a display to ask for a password on
    QDateTime now;           // by the computer's clock
    // the kernel holds that the clock follows another one; absent: it doesn't tell
    std::optional<bool> clockIsSet;
    // What the program said of its version, or nothing when it did not end well.
    std::optional<QString> torVersion;
    // As root alone: what `nft list tables` complained of, empty when it worked. Absent: not asked.
    std::optional<Text> firewallComplaint;
    std::function<std::optional<FileOwner>(const QString &path)> owner;

    bool isLinux() const { return profile.promptKind == PromptKind::PolicyKit; }
    QString at(const char *path) const { return profile.places.root + QLatin1String(path); }
    bool exists(const char *path) const;
    QString read(const char *path) const { return readFile(at(path)); }
    // The first 256 kB; empty when it cannot be read.
    static QString readFile(const QString &path);

    // The path of a program of the system's, or empty.
    QString program(const QString &name) const;
    // The tor that a connect would run, or empty.
    QString tor() const;
    // The command that installs a package on this distribution; empty where that is not known.
    QString installing(const QString &package) const;
    // The number of an account, and the name of one.
    std::optional<uid_t> account(const QString &name) const;
    QString accountName(uid_t user) const;
    bool isPasswordless() const;
};

// A process that /proc tells of.
struct RunningProcess {
    qint64 pid = 0;
    QString name; // at most 15 characters; printable ones only
    uid_t user = 0;
    QString unit; // systemd's unit, "tor@default.service", or empty
};

std::vector<RunningProcess> runningProcesses(const Machine &machine);
bool runs(const std::vector<RunningProcess> &processes, const QString &name);

} // namespace veldmark
