#pragma once

#include <QList>
#include <QObject>
#include <QQuickWindow>
#include <QRect>

#include <optional>

namespace veldmark {

class SettingsStore;

// Remembers size and position of each window, frame included, and keeps windows on the present
// screens. Where programs cannot place their windows (Wayland), only sizes count. Main thread.
class WindowPlaces : public QObject {
    Q_OBJECT

public:
    // How a window's height is decided. `ownedByContent`: by its content, and only the height that
    // the user has chosen is remembered, from the property `chosenHeight` (0 when the user has
    // chosen none).
    enum class Height { remembered, ownedByContent };

    // `settings` must outlive the object; the windows need not.
    explicit WindowPlaces(SettingsStore &settings);

    // Called before the window is shown. Restores the place that keep() last stored, or leaves the
    // place to the window manager.
    void remember(const QString &name, QQuickWindow *window, Height height = Height::remembered);
    // Called before the window goes. Stores its place on disk. Only for windows passed to
    // remember().
    void keep(const QString &name, const QQuickWindow *window, Height height = Height::remembered);

    // `place` moved, and shrunk if it must be, so that it lies within one of `screens` (their
    // usable areas, the primary one first): the one that it overlaps most, else the first.
    static QRect within(const QList<QRect> &screens, QRect place);
    static QString text(const QRect &place); // "WIDTHxHEIGHT+X+Y"
    static std::optional<QRect> parse(const QString &text);

private:
    void watch(QScreen *screen);
    void bringBack(); // windows outside the remaining screens
    static QList<QRect> usableAreas();
    static QString key(const QString &name) { return QStringLiteral("windows/") + name; }
    static QString heightKey(const QString &name) { return key(name) + QStringLiteral("Height"); }

    SettingsStore &m_settings;
};

} // namespace veldmark
