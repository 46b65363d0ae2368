#include "system/SettingsStore.h"

#include "system/SettingsFile.h"

#include <algorithm>

namespace veldmark {

namespace {

// QSettings returns text for values read from a file, and typed values for those set since.
std::optional<bool> asBoolean(const QVariant &value)
{
    if (value.typeId() == QMetaType::Bool)
        return value.toBool();
    if (value.typeId() == QMetaType::QString) {
        const QString text = value.toString().toLower();
        if (text == QLatin1String("true") || text == QLatin1String("1"))
            return true;
        if (text == QLatin1String("false") || text == QLatin1String("0"))
            return false;
    }
    return std::nullopt;
}

std::optional<QString> asString(const QVariant &value)
{
    if (value.typeId() == QMetaType::QString)
        return value.toString();
    return std::nullopt;
}

// A file cannot distinguish a list of one element from a string, and has "@Invalid()" for an empty
// list.
std::optional<QStringList> asStringList(const QVariant &value)
{
    if (!value.isValid())
        return QStringList();
    if (value.typeId() == QMetaType::QString)
        return QStringList(value.toString());
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList();
    if (value.typeId() == QMetaType::QVariantList) {
        const QVariantList list = value.toList();
        const bool allText = std::all_of(list.begin(), list.end(), [](const QVariant &element) {
            return element.typeId() == QMetaType::QString;
        });
        if (allText)
            return value.toStringList();
    }
    return std::nullopt;
}

template <typename T>
T firstOf(const QString &key, const QVariantMap &values, const QVariantMap &defaults,
          std::optional<T> (*as)(const QVariant &))
{
    for (const QVariantMap *map : {&values, &defaults}) {
        if (const auto found = map->constFind(key); found != map->constEnd()) {
            if (const std::optional<T> value = as(*found))
                return *value;
        }
    }
    return T();
}

} // namespace

SettingsStore::SettingsStore(const PlatformProfile &profile) : m_path(profile.settingsFile)
{
    if (m_path.isEmpty()) {
        m_system = std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                               QStringLiteral("veldmark"),
                                               QStringLiteral("veldmark"));
        m_system->setFallbacksEnabled(false); // only values of this program and this user
        for (const QString &key : m_system->allKeys())
            m_values.insert(key, m_system->value(key));
    } else if (setAsideIfBroken()) {
        m_values = readSettingsFile(m_path);
    }
}

bool SettingsStore::boolean(const QString &key) const
{
    return firstOf(key, m_values, m_defaults, asBoolean);
}

QString SettingsStore::string(const QString &key) const
{
    return firstOf(key, m_values, m_defaults, asString);
}

QStringList SettingsStore::stringList(const QString &key) const
{
    return firstOf(key, m_values, m_defaults, asStringList);
}

void SettingsStore::setBoolean(const QString &key, bool value)
{
    set(key, value);
}

void SettingsStore::setString(const QString &key, const QString &value)
{
    // A null string would be stored as a missing value.
    set(key, value.isNull() ? QStringLiteral("") : value);
}

void SettingsStore::setStringList(const QString &key, const QStringList &value)
{
    set(key, value);
}

void SettingsStore::remove(const QString &key)
{
    m_values.remove(key);
    m_unwritten.insert(key);
    write();
}

void SettingsStore::registerDefaults(const QVariantMap &defaults)
{
    m_defaults.insert(defaults);
}

std::optional<Text> SettingsStore::problem()
{
    if (m_problems.isEmpty())
        return std::nullopt;
    return m_problems.takeFirst();
}

void SettingsStore::set(const QString &key, const QVariant &value)
{
    m_values.insert(key, value);
    m_unwritten.insert(key);
    write();
}

bool SettingsStore::setAsideIfBroken()
{
    const SettingsFileState state = settingsFileState(m_path);
    if (state == SettingsFileState::Intact || state == SettingsFileState::Missing)
        return true;
    if (const auto kept = setSettingsFileAside(m_path)) {
        m_problems += Text::tr("The settings file couldn't be read. It was kept as %1, and a "
                               "new one is used.")
                          .arg(*kept);
        return true;
    }
    m_problems += Text::tr("The settings file %1 can't be read or replaced. Changes to the "
                           "settings last until you quit.")
                      .arg(m_path);
    m_memoryOnly = true;
    return false;
}

void SettingsStore::write()
{
    if (m_memoryOnly)
        return; // reported already
    const bool written = m_system ? writeSystemStore() : writeFile();
    if (written)
        m_unwritten.clear();
    else if (!m_failing && !m_memoryOnly)
        m_problems += Text::tr("The settings couldn't be saved. Changes to them may last "
                               "only until you quit.");
    m_failing = !written;
}

bool SettingsStore::writeFile()
{
    // The file may have been damaged or removed since the last reading.
    if (!setAsideIfBroken())
        return false;
    if (settingsFileState(m_path) == SettingsFileState::Missing) {
        for (auto value = m_values.keyBegin(); value != m_values.keyEnd(); ++value)
            m_unwritten.insert(*value);
    }
    return rewriteSettingsFile(m_path, m_unwritten, m_values);
}

bool SettingsStore::writeSystemStore()
{
    for (const QString &key : std::as_const(m_unwritten)) {
        if (m_values.contains(key))
            m_system->setValue(key, m_values.value(key));
        else
            m_system->remove(key);
    }
    m_system->sync();
    return m_system->status() == QSettings::NoError;
}

} // namespace veldmark
