#pragma once

#include "base/ConnectionPhase.h"
#include "base/Text.h"

#include <QJsonValue>
#include <QObject>
#include <QStringList>

#include <optional>
#include <vector>

namespace veldmark {

class FieldOwner;
class SettingsStore;

// Describes one of the user's settings, for lists and completions.
struct SettingInfo {
    Text help;                   // a few words
    bool isOfConnection = false; // used to make a connection, so locked until that ends
    QStringList values;          // all possible values, when they are few
};

// A field that views observe. It registers itself with its owner, in the order of declaration. The
// published state, the settings' names, observers and completions are made from that list. Main
// thread.
class Field : public QObject {
    Q_OBJECT

public:
    // The name in the published state and in the settings' file.
    QString name() const { return m_name; }
    virtual QJsonValue toJson() const = 0;
    // The value that counts in that phase.
    virtual QJsonValue toJsonIn(ConnectionPhase phase) const = 0;
    // Like Text::toJson() for a text; else null.
    virtual QJsonValue textToJson() const = 0;
    // Absent for a field that is not a setting.
    const std::optional<SettingInfo> &setting() const { return m_setting; }

Q_SIGNALS:
    void changed();

protected:
    Field(FieldOwner *owner, const char *name, std::optional<SettingInfo> setting = {});

private:
    const QString m_name;
    const std::optional<SettingInfo> m_setting;
};

// An object with fields. Its settings are kept in `store`, which must outlive it.
class FieldOwner : public QObject {
public:
    const std::vector<Field *> &fields() const { return m_fields; }
    Field *fieldNamed(const QString &name) const; // null: there is none
    SettingsStore &store() const { return m_store; }

    // Shows what failed while a field was set.
    virtual void showProblem(const Text &problem) = 0;

protected:
    FieldOwner(SettingsStore &store, QObject *parent) : QObject(parent), m_store(store) { }

private:
    friend class Field;
    SettingsStore &m_store;
    std::vector<Field *> m_fields;
};

} // namespace veldmark
