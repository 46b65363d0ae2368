#pragma once

#include <QList>
#include <QObject>
#include <QQuickWindow>
#include <QRect>

#include <optional>

namespace veldmark {

class SettingsStore;

// Remembers how large each window was and where it stood, frame included, and keeps windows on the
// screens that there are. Where programs cannot place their windows (Wayland) only sizes count.
// Main thread.
class WindowPlaces : public QObject {
    Q_OBJECT

public:
    // What a window does with the height that it is given. One whose content decides has the
    // property `chosenHeight`, which its user's own height is, or 0; only that one is remembered.
    enum class Height { remembered, ownedByContent };

    // `settings` must outlive the object; the windows need not.
    explicit WindowPlaces(SettingsStore &settings);

    // To be called before the window is shown. Puts it where it was when keep() was last called,
    // or leaves it to the window manager.
    void remember(const QString &name, QQuickWindow *window, Height height = Height::remembered);
    // The window is about to go: its place is kept on disk. Only of a window that was remembered.
    void keep(const QString &name, const QQuickWindow *window, Height height = Height::remembered);

    // `place` moved, and shrunk if it must be, so that it lies within one of `screens` (their
    // usable areas, the primary one first): the one that it overlaps most, else the first.
    static QRect within(const QList<QRect> &screens, QRect place);
    static QString text(const QRect &place); // "WIDTHxHEIGHT+X+Y"
    static std::optional<QRect> parse(const QString &text);

private:
    void watch(QScreen *screen);
    void bringBack(); // what the screens that are left do not show
    static QList<QRect> usableAreas();
    static QString key(const QString &name) { return QStringLiteral("windows/") + name; }
    static QString heightKey(const QString &name) { return key(name) + QStringLiteral("Height"); }

    SettingsStore &m_settings;
};

} // namespace veldmark
