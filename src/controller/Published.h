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

// A field of the controller that views observe: anyone reads it as `controller.phase()`, only the
// controller assigns it. An assignment that changes the value emits changed().
template <typename T> class Published : public Field {
public:
    Published(FieldOwner *owner, const char *name, T initial = {})
        : Field(owner, name),
          m_value(std::move(initial))
    {
    }

    const T &operator()() const { return m_value; }
    QJsonValue toJson() const override { return json(m_value); }
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
};

// Whether a setting can be changed while a connection stands.
enum class Scope { always, connection };

// A published field that the user owns, kept in the owner's store under its name: anyone may set
// it, and each `set` is on disk when it returns, also when the value stays the same. What goes
// wrong with the file is what `set` returns, one sentence or more, and is shown by the owner; the
// value holds all the same.
template <typename T> class Setting : public Published<T> {
public:
    // `fallback` holds where the user has no value of their own.
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
        std::vector<Text> problems; // a damaged file may be kept, and no new one be written
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
