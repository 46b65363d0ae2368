#include "controller/Field.h"

#include <algorithm>

namespace veldmark {

Field::Field(FieldOwner *owner, const char *name, std::optional<SettingInfo> setting)
    : m_name(QString::fromLatin1(name)),
      m_setting(std::move(setting))
{
    owner->m_fields.push_back(this);
}

Field *FieldOwner::fieldNamed(const QString &name) const
{
    const auto found = std::find_if(m_fields.begin(), m_fields.end(),
                                    [&name](const Field *field) { return field->name() == name; });
    return found == m_fields.end() ? nullptr : *found;
}

} // namespace veldmark
