#pragma once

#include "base/Text.h"
#include "platform/PlatformProfile.h"

#include <QSet>
#include <QSettings>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <memory>
#include <optional>

namespace veldmark {

// The user's settings: typed values that survive a restart, in the profile's settings file, or in
// the system's own store when the profile names no file. Main thread only.
//
// Reading returns the value last set, otherwise the registered default, otherwise false or empty. A
// stored value of another type counts as not set, and stays unchanged. A set value is on disk when
// the call returns. After a failed write the value is valid until the program ends, every later
// change tries the write again, and problem() reports the failure.
//
// An unreadable or damaged file is renamed to "….broken" and the defaults apply. If the rename
// fails, nothing is ever written. Unknown keys stay in the file. Writing replaces the whole file,
// so that a crash leaves the old or the new one.
class SettingsStore {
public:
    explicit SettingsStore(const PlatformProfile &profile);

    bool boolean(const QString &key) const; // stored as true or false; 1 and 0 are also accepted
    QString string(const QString &key) const;
    QStringList stringList(const QString &key) const;

    void setBoolean(const QString &key, bool value);
    void setString(const QString &key, const QString &value);
    void setStringList(const QString &key, const QStringList &value);
    void remove(const QString &key); // the default applies again

    // Defaults for keys that are not set; they are never written. Adds to earlier defaults.
    void registerDefaults(const QVariantMap &defaults);

    // The problem with the file, as one sentence for the user; each is returned once. Repeated
    // write failures are one problem until a write succeeds.
    std::optional<Text> problem();

private:
    void set(const QString &key, const QVariant &value);
    void write();
    bool writeFile();
    bool writeSystemStore();
    bool setAsideIfBroken(); // false: the file must not be written

    const QString m_path;                // empty: the system's store
    std::unique_ptr<QSettings> m_system; // the system's store
    bool m_memoryOnly = false;           // a broken file could not be renamed
    QVariantMap m_values;                // the set values, as read or set here
    QSet<QString> m_unwritten;           // keys set or removed here that are not on disk yet
    QVariantMap m_defaults;
    QList<Text> m_problems;
    bool m_failing = false; // the last write failed
};

} // namespace veldmark
