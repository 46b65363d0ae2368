#include "platform/BundlePath.h"

#include <QDir>

namespace veldmark {

QString comparableBundle(const QString &path)
{
    QString clean = QDir::cleanPath(path).normalized(QString::NormalizationForm_C);
    for (const char *linked : {"/private/var/", "/private/tmp/", "/private/etc/"}) {
        if (clean.startsWith(QLatin1String(linked)))
            return clean.remove(0, QLatin1String("/private").size());
    }
    return clean;
}

} // namespace veldmark
