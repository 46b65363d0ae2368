#pragma once

#include "bridges/BridgeChoice.h"
#include "system/SettingsStore.h"

#include <QString>

#include <optional>
#include <utility>

namespace veldmark {

class TorController;

// A field of the controller that views observe: anyone reads it as `controller.phase()`, only the
// controller assigns it. An assignment that changes the value emits the field's signal.
template <typename T>
class Published {
public:
    using Signal = void (TorController::*)();

    Published(TorController *owner, Signal changed, T initial = {})
        : m_owner(owner), m_changed(changed), m_value(std::move(initial))
    {
    }
    Published(const Published &) = delete;

    const T &operator()() const { return m_value; }

protected:
    friend class TorController;
    Published &operator=(T value)
    {
        if (m_value == value)
            return *this;
        m_value = std::move(value);
        (m_owner->*m_changed)();
        return *this;
    }

    TorController *m_owner;
    Signal m_changed;
    T m_value;
};

// How each type of setting is kept in the store. A stored value that is none of the type's reads
// as the given fallback.
bool readSetting(const SettingsStore &store, const QString &key, bool fallback);
QString readSetting(const SettingsStore &store, const QString &key, const QString &fallback);
QStringList readSetting(const SettingsStore &store, const QString &key, const QStringList &fallback);
BridgeChoice readSetting(const SettingsStore &store, const QString &key, BridgeChoice fallback);
void writeSetting(SettingsStore &store, const QString &key, bool value);
void writeSetting(SettingsStore &store, const QString &key, const QString &value);
void writeSetting(SettingsStore &store, const QString &key, const QStringList &value);
void writeSetting(SettingsStore &store, const QString &key, BridgeChoice value);

// A published field that the user owns: anyone may set it, and each `set` is on disk when it
// returns, also when the value stays the same. What goes wrong with the file is what `set` returns,
// one sentence, and becomes the controller's `errorMessage`; the value holds all the same.
template <typename T>
class Setting : public Published<T> {
public:
    Setting(TorController *owner, typename Published<T>::Signal changed, SettingsStore &store,
            QString key)
        : Published<T>(owner, changed), m_store(store), m_key(std::move(key))
    {
    }

    std::optional<QString> set(T value)
    {
        writeSetting(m_store, m_key, value);
        std::optional<QString> problem;
        while (const auto next = m_store.problem())
            problem = next;
        Published<T>::operator=(std::move(value));
        if (problem)
            this->m_owner->showProblem(*problem);
        return problem;
    }

    const QString &key() const { return m_key; }

private:
    friend class TorController;
    // Reads the stored value without writing it back or telling anybody.
    void load() { this->m_value = readSetting(m_store, m_key, this->m_value); }

    SettingsStore &m_store;
    QString m_key;
};

} // namespace veldmark
