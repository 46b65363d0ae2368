#pragma once

#include "base/Text.h"
#include "controller/Field.h"
#include "controller/FieldValue.h"
#include "system/SettingsStore.h"

#include <optional>
#include <utility>
#include <vector>

namespace veldmark {

class TorController;

// When a field's value counts: what a check or Tor says of the session, only while connected.
enum class Valid { always, whileConnected };

// A field of the controller that views observe. Any caller reads it as `controller.phase()`; only
// the controller assigns it. An assignment that changes the value emits changed().
template <typename T> class Published : public Field {
public:
    Published(FieldOwner *owner, const char *name, T initial = {}, Valid valid = Valid::always)
        : Field(owner, name),
          m_value(std::move(initial))
    {
        if (valid == Valid::whileConnected)
            m_unconnected.emplace(m_value);
    }

    const T &operator()() const { return m_value; }
    // The value, or the initial one where the value does not count in that phase.
    const T &in(ConnectionPhase phase) const
    {
        return m_unconnected && phase != ConnectionPhase::connected ? *m_unconnected : m_value;
    }
    QJsonValue toJson() const override { return json(m_value); }
    QJsonValue toJsonIn(ConnectionPhase phase) const override { return json(in(phase)); }
    QJsonValue textToJson() const override { return textJson(m_value); }

protected:
    friend class TorController;
    Published(FieldOwner *owner, const char *name, SettingInfo info)
        : Field(owner, name, std::move(info))
    {
    }
    Published &operator=(T value)
    {
        if (m_value == value)
            return *this;
        m_value = std::move(value);
        Q_EMIT changed();
        return *this;
    }

    T m_value{};

private:
    std::optional<T> m_unconnected; // absent: the value always counts
};

// Whether a setting can be changed while connected.
enum class Scope { always, connection };

// A published field that the user owns, kept in the owner's store under its name. Any caller may
// set it. The file is written before `set` returns, even when the value stays the same. Problems
// with the file are what `set` returns, one sentence or more, and the owner shows them; the value
// holds all the same.
template <typename T> class Setting : public Published<T> {
public:
    // `fallback` is used when the user has not set a value.
    Setting(FieldOwner *owner, const char *name, Scope scope, Text help,
            std::optional<T> fallback = {})
        : Published<T>(
            owner, name,
            SettingInfo{std::move(help), scope == Scope::connection, possibleValues(T())}),
          m_owner(*owner)
    {
        if (fallback)
            m_owner.store().registerDefaults({{this->name(), stored(*fallback)}});
        this->m_value = readSetting(m_owner.store(), this->name(), fallback.value_or(T()));
    }

    std::optional<Text> set(T value)
    {
        SettingsStore &store = m_owner.store();
        writeSetting(store, this->name(), value);
        std::vector<Text> problems; // the store may keep a damaged file and fail to write a new one
        while (const auto next = store.problem())
            problems.push_back(*next);
        Published<T>::operator=(std::move(value));
        if (problems.empty())
            return std::nullopt;
        const Text all = Text::joined(problems);
        m_owner.showProblem(all);
        return all;
    }

private:
    FieldOwner &m_owner;
};

} // namespace veldmark
