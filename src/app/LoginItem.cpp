#include "app/LoginItem.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace veldmark {

namespace {

constexpr qint64 entryLimitBytes = 64 * 1024;

// The value of a key in the "[Desktop Entry]" group; empty when there is none.
QByteArray valueOf(const QByteArray &entry, const QByteArray &key)
{
    bool isOwnGroup = false;
    for (const QByteArray &part : entry.split('\n')) {
        const QByteArray line = part.trimmed();
        if (line.startsWith('['))
            isOwnGroup = line == "[Desktop Entry]";
        const qsizetype equals = line.indexOf('=');
        if (isOwnGroup && equals > 0 && line.first(equals).trimmed() == key)
            return line.sliced(equals + 1).trimmed();
    }
    return {};
}

} // namespace

bool LoginItem::isSet() const
{
    QFile file(m_path);
    if (m_path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return false;
    // Desktops use both keys to switch an entry off without removing it.
    const QByteArray text = file.read(entryLimitBytes);
    return valueOf(text, "Hidden") != "true"
        && valueOf(text, "X-GNOME-Autostart-enabled") != "false";
}

QString LoginItem::entry(const QString &executable)
{
    // Two layers of quoting: Exec has its own, and the key file's format halves the backslashes
    // first.
    QString quoted = executable;
    for (const QChar special : {u'\\', u'"', u'`', u'$'})
        quoted.replace(special, QStringLiteral("\\") + special);
    quoted.replace(u'\\', QStringLiteral("\\\\")).replace(u'%', QStringLiteral("%%"));
    return QStringLiteral("[Desktop Entry]\nType=Application\nName=Veldmark\nIcon=veldmark\n"
                          "Exec=\"%1\" --hidden\nX-GNOME-Autostart-enabled=true\n")
        .arg(quoted);
}

Result<void, Text> LoginItem::set(bool on) const
{
    if (m_path.isEmpty())
        return Failure(Text::tr("Login items can't be changed here."));
    if (on == isSet())
        return {}; // keeps an entry that the user has edited
    if (!on) {
        if (!QFile::remove(m_path))
            return Failure(Text::tr("Couldn't remove %1.").arg(m_path));
        return {};
    }
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    QSaveFile file(m_path);
    const QByteArray text = entry(QCoreApplication::applicationFilePath()).toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        return Failure(Text::tr("Couldn't write %1: %2").arg(m_path, file.errorString()));
    return {};
}

} // namespace veldmark
