#pragma once

#include "controller/Field.h"

#include <QHash>
#include <QVariant>

namespace veldmark {

// What `set` takes for a setting and is not its present value. Only a setting of free text needs a
// line here; without one the answer is empty.
inline QString anotherValue(const Field &setting)
{
    static const QHash<QString, QString> texts{
        {QStringLiteral("exitCountry"), QStringLiteral("de")},
        {QStringLiteral("customTorPath"), QStringLiteral("/opt/it's \"tor\"")},
        {QStringLiteral("customBridges"), QStringLiteral("obfs4 192.0.2.1:443 A\n192.0.2.2:9001")},
        {QStringLiteral("bypassApps"), QStringLiteral("[\"/a b.desktop\", \"/c,d.desktop\"]")},
    };
    const QString now = setting.toJson().toVariant().toString();
    for (const QString &value : setting.setting()->values) {
        if (value != now)
            return value;
    }
    return texts.value(setting.name());
}

} // namespace veldmark
