#include "app/WindowPlaces.h"

#include "system/SettingsStore.h"

#include <QGuiApplication>
#include <QRegularExpression>
#include <QScreen>

#include <algorithm>

namespace veldmark {

namespace {

bool placesItsWindows()
{
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

int area(const QRect &rect)
{
    return rect.isEmpty() ? 0 : rect.width() * rect.height();
}

} // namespace

WindowPlaces::WindowPlaces(SettingsStore &settings) : m_settings(settings)
{
    for (QScreen *screen : QGuiApplication::screens())
        watch(screen);
    QObject::connect(qApp, &QGuiApplication::screenAdded, this, &WindowPlaces::watch);
    // Queued: when a screen goes, Qt first moves its windows to another screen.
    QObject::connect(qApp, &QGuiApplication::screenRemoved, this, &WindowPlaces::bringBack,
                     Qt::QueuedConnection);
}

void WindowPlaces::watch(QScreen *screen)
{
    QObject::connect(screen, &QScreen::availableGeometryChanged, this, &WindowPlaces::bringBack,
                     Qt::QueuedConnection);
}

QList<QRect> WindowPlaces::usableAreas()
{
    QList<QRect> areas;
    for (const QScreen *screen : QGuiApplication::screens())
        areas << screen->availableGeometry(); // the primary screen is first
    return areas;
}

void WindowPlaces::remember(const QString &name, QQuickWindow *window, Height height)
{
    const auto stored = parse(m_settings.string(key(name)));
    if (!stored)
        return;
    QRect place = *stored;
    const int chosen = height == Height::ownedByContent ? m_settings.string(heightKey(name)).toInt()
                                                        : 0;
    if (height == Height::ownedByContent)
        place.setHeight(chosen > 0 ? chosen : window->height());
    place.setSize(place.size().expandedTo(window->minimumSize()).boundedTo(window->maximumSize()));
    place = within(usableAreas(), place);
    window->setWidth(place.width());
    if (height == Height::remembered)
        window->setHeight(place.height());
    else if (chosen > 0)
        window->setProperty("chosenHeight", place.height());
    if (placesItsWindows())
        window->setFramePosition(place.topLeft());
}

void WindowPlaces::keep(const QString &name, const QQuickWindow *window, Height height)
{
    if (window->windowStates() & (Qt::WindowMaximized | Qt::WindowFullScreen | Qt::WindowMinimized))
        return; // the user has not chosen this place
    const QString now = text(QRect(window->framePosition(), window->size()));
    if (m_settings.string(key(name)) != now)
        m_settings.setString(key(name), now);
    const QString chosen = window->property("chosenHeight").toString();
    if (height == Height::ownedByContent && chosen.toInt() > 0
        && m_settings.string(heightKey(name)) != chosen)
        m_settings.setString(heightKey(name), chosen);
}

void WindowPlaces::bringBack()
{
    if (!placesItsWindows())
        return;
    const QList<QRect> areas = usableAreas();
    for (QWindow *window : QGuiApplication::topLevelWindows()) {
        if (!window->isVisible() || !qobject_cast<QQuickWindow *>(window))
            continue;
        const QRect frame = window->frameGeometry();
        const QRect wanted = within(areas, frame);
        if (wanted != frame) {
            window->resize(window->size() - (frame.size() - wanted.size()));
            window->setFramePosition(wanted.topLeft());
        }
    }
}

QRect WindowPlaces::within(const QList<QRect> &screens, QRect place)
{
    if (screens.isEmpty())
        return place;
    const QRect &room = *std::max_element(
        screens.begin(), screens.end(), [&place](const QRect &a, const QRect &b) {
            return area(a.intersected(place)) < area(b.intersected(place));
        }); // the first of equal ones
    place.setSize(place.size().boundedTo(room.size()));
    place.moveLeft(std::clamp(place.left(), room.left(), room.right() - place.width() + 1));
    place.moveTop(std::clamp(place.top(), room.top(), room.bottom() - place.height() + 1));
    return place;
}

QString WindowPlaces::text(const QRect &place)
{
    return QStringLiteral("%1x%2+%3+%4")
        .arg(place.width())
        .arg(place.height())
        .arg(place.x())
        .arg(place.y());
}

std::optional<QRect> WindowPlaces::parse(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral(R"(\A(\d{2,5})x(\d{2,5})\+(-?\d{1,5})\+(-?\d{1,5})\z)"));
    const auto match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    return QRect(match.captured(3).toInt(), match.captured(4).toInt(), match.captured(1).toInt(),
                 match.captured(2).toInt());
}

} // namespace veldmark
