#include "ui/ApplicationChoices.h"

#include "ui/Symbols.h"

#include <QIcon>
#include <QUrl>

#include <algorithm>

namespace veldmark {

ApplicationChoices::ApplicationChoices(Session &session, QObject *parent)
    : QAbstractListModel(parent),
      m_session(session)
{
    QObject::connect(&session, &Session::changed, this, [this] {
        if (!m_shown.empty())
            Q_EMIT dataChanged(index(0), index(rowCount() - 1), {ChosenRole});
    });
}

int ApplicationChoices::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

QHash<int, QByteArray> ApplicationChoices::roleNames() const
{
    return {{NameRole, "name"}, {PictureRole, "picture"}, {ChosenRole, "chosen"}};
}

QVariant ApplicationChoices::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const InstalledApplication &application = m_all[m_shown[static_cast<std::size_t>(index.row())]];
    switch (role) {
    case NameRole:
        return application.name;
    case PictureRole:
        return ApplicationIcons::url(application.icon);
    case ChosenRole:
        return m_session.now().choices.bypassApps.contains(application.path);
    default:
        return {};
    }
}

void ApplicationChoices::setSearch(const QString &text)
{
    if (text == m_search)
        return;
    m_search = text;
    update();
}

QString ApplicationChoices::emptyText() const
{
    return m_all.empty() ? tr("No installed applications were found.")
                         : tr("No application is called “%1”.").arg(m_search.trimmed());
}

void ApplicationChoices::refresh()
{
    m_all = m_session.installedApplications();
    std::stable_sort(
        m_all.begin(), m_all.end(),
        [](const InstalledApplication &a, const InstalledApplication &b) {
            return QString::localeAwareCompare(a.name.toCaseFolded(), b.name.toCaseFolded()) < 0;
        });
    update();
}

void ApplicationChoices::update()
{
    beginResetModel();
    m_shown.clear();
    const QString wanted = m_search.trimmed();
    for (std::size_t place = 0; place < m_all.size(); ++place) {
        if (m_all[place].name.contains(wanted, Qt::CaseInsensitive))
            m_shown.push_back(place);
    }
    endResetModel();
    Q_EMIT changed();
}

void ApplicationChoices::toggle(int row)
{
    if (row < 0 || row >= rowCount())
        return;
    const QString path = m_all[m_shown[static_cast<std::size_t>(row)]].path;
    if (m_session.now().choices.bypassApps.contains(path))
        m_session.removeBypassApp(path);
    else
        m_session.addBypassApp(path);
}

QString ApplicationIcons::url(const QString &icon)
{
    return icon.isEmpty() ? QString()
                          : QStringLiteral("image://application/")
            + QString::fromLatin1(QUrl::toPercentEncoding(icon));
}

QImage ApplicationIcons::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const QString icon = QUrl::fromPercentEncoding(id.toUtf8());
    const int pixels = requestedSize.width() > 0 ? requestedSize.width() : 32;
    const QIcon found = icon.startsWith(u'/') ? QIcon(icon) : QIcon::fromTheme(icon);
    QImage image = found.pixmap(QSize(pixels, pixels), 1.0).toImage();
    if (image.isNull()) // missing or damaged: a generic symbol fills the place
        image = Symbols::image(QStringLiteral("square.grid.2x2"), pixels, QColor(0x80, 0x80, 0x90));
    *size = image.size();
    return image;
}

} // namespace veldmark
