#include "app/LoginItem.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace veldmark {

bool LoginItem::isSet() const
{
    return !m_path.isEmpty() && QFile::exists(m_path);
}

QString LoginItem::entry(const QString &executable)
{
    // Two layers: the quoting of Exec, whose backslashes the key file's format halves first.
    QString quoted = executable;
    for (const QChar special : {u'\\', u'"', u'`', u'$'})
        quoted.replace(special, QStringLiteral("\\") + special);
    quoted.replace(u'\\', QStringLiteral("\\\\")).replace(u'%', QStringLiteral("%%"));
    return QStringLiteral("[Desktop Entry]\nType=Application\nName=Veldmark\nIcon=veldmark\n"
                          "Exec=\"%1\" --hidden\nX-GNOME-Autostart-enabled=true\n")
        .arg(quoted);
}

Result<void, QString> LoginItem::set(bool on) const
{
    if (m_path.isEmpty())
        return Failure(QCoreApplication::translate("LoginItem", "Login items can't be changed here."));
    if (!on) {
        if (QFile::exists(m_path) && !QFile::remove(m_path))
            return Failure(QCoreApplication::translate("LoginItem", "Couldn't remove %1.").arg(m_path));
        return {};
    }
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    QSaveFile file(m_path);
    const QByteArray text = entry(QCoreApplication::applicationFilePath()).toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        return Failure(QCoreApplication::translate("LoginItem", "Couldn't write %1: %2")
                           .arg(m_path, file.errorString()));
    return {};
}

} // namespace veldmark
