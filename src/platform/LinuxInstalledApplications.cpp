#include "platform/InstalledApplications.h"

#include <QFile>
#include <QRegularExpression>

#include <gio/gdesktopappinfo.h>

#include <algorithm>
#include <memory>

namespace veldmark {

namespace {

QString iconOf(GAppInfo *info)
{
    GIcon *const icon = g_app_info_get_icon(info); // owned by the entry
    if (!icon)
        return {};
    const std::unique_ptr<gchar, decltype(&g_free)> text(g_icon_to_string(icon), &g_free);
    return QString::fromUtf8(text.get());
}

// A user can write an entry, and so its name.
QString shownName(const char *name)
{
    QString line = QString::fromUtf8(name).simplified();
    line.removeIf([](QChar c) { return !c.isPrint() && !c.isSurrogate(); });
    return line.left(60);
}

// "snap.NAME.APP" has the entry NAME_APP.desktop.
QString entryOf(const QString &id)
{
    static const QRegularExpression snap(QStringLiteral("\\Asnap\\.([^.]+)\\.([^.]+)\\z"));
    const auto parts = snap.match(id);
    return (parts.hasMatch() ? parts.captured(1) + u'_' + parts.captured(2) : id)
        + QStringLiteral(".desktop");
}

} // namespace

InstalledApplication applicationOfIdentity(const QString &id)
{
    InstalledApplication application{{}, id, {}};
    // Ids with other characters are a login session's or a name from run-as, or have \xNN.
    static const QRegularExpression ids(QStringLiteral("\\A[A-Za-z0-9_][A-Za-z0-9_.+-]*\\z"));
    if (!ids.match(id).hasMatch())
        return application;
    GDesktopAppInfo *const info = g_desktop_app_info_new(entryOf(id).toUtf8().constData());
    if (!info)
        return application;
    if (const QString name = shownName(g_app_info_get_display_name(G_APP_INFO(info)));
        !name.isEmpty())
        application.name = name;
    application.path = QFile::decodeName(g_desktop_app_info_get_filename(info));
    application.icon = iconOf(G_APP_INFO(info));
    g_object_unref(info);
    return application;
}

std::vector<InstalledApplication> installedApplications()
{
    std::vector<InstalledApplication> applications;
    GList *const entries = g_app_info_get_all();
    for (const GList *entry = entries; entry; entry = entry->next) {
        auto *const info = static_cast<GAppInfo *>(entry->data);
        const char *const path = G_IS_DESKTOP_APP_INFO(info)
            ? g_desktop_app_info_get_filename(G_DESKTOP_APP_INFO(info))
            : nullptr;
        if (path && g_app_info_should_show(info))
            applications.push_back({QFile::decodeName(path),
                                    QString::fromUtf8(g_app_info_get_display_name(info)),
                                    iconOf(info)});
    }
    g_list_free_full(entries, g_object_unref);
    std::sort(applications.begin(), applications.end(), [](const auto &a, const auto &b) {
        const int order = QString::localeAwareCompare(a.name.toCaseFolded(), b.name.toCaseFolded());
        return order != 0 ? order < 0 : a.path < b.path;
    });
    return applications;
}

} // namespace veldmark
