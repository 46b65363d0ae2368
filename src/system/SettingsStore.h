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

// The user's settings: a few typed values that survive a restart, in the profile's settings file,
// or in the system's own store where the profile names no file. Main thread only.
//
// What is read is the value that was set last, else the registered default, else false or empty.
// A stored value of another type than is asked for counts as not set, and stays as it is.
// A value that was set is on disk when the call returns. Where it could not be written, it holds
// until the program ends, is tried again with every later change, and problem() says so.
//
// A file that cannot be read or is damaged is renamed to "….broken" and the defaults hold. If it
// cannot even be renamed, nothing is ever written. Keys that this version does not know stay in
// the file. Writing replaces the file as a whole, so that a crash leaves the old or the new one.
class SettingsStore {
public:
    explicit SettingsStore(const PlatformProfile &profile);

    bool boolean(const QString &key) const; // stored as true or false; 1 and 0 are understood
    QString string(const QString &key) const;
    QStringList stringList(const QString &key) const;

    void setBoolean(const QString &key, bool value);
    void setString(const QString &key, const QString &value);
    void setStringList(const QString &key, const QStringList &value);
    void remove(const QString &key); // the default holds again

    // Values for keys that are not set; they are never written. Adds to the earlier ones.
    void registerDefaults(const QVariantMap &defaults);

    // What went wrong with the file, as one sentence for the user; each is given once. A write
    // that keeps failing is one problem until one has succeeded.
    std::optional<Text> problem();

private:
    void set(const QString &key, const QVariant &value);
    void write();
    bool writeFile();
    bool writeSystemStore();
    bool setAsideIfBroken(); // false: the file may not be touched

    const QString m_path;                // empty: the system's store
    std::unique_ptr<QSettings> m_system; // the system's store
    bool m_memoryOnly = false;           // a broken file stands in the way
    QVariantMap m_values;                // what is set, as it was read or set here
    QSet<QString> m_unwritten;           // keys set or removed here that are not on disk yet
    QVariantMap m_defaults;
    QList<Text> m_problems;
    bool m_failing = false; // the last write failed
};

} // namespace veldmark
