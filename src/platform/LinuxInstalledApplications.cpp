#include "platform/InstalledApplications.h"

#include <QFile>

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

} // namespace

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
