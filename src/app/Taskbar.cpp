#include "app/Taskbar.h"

#include <QGuiApplication>
#include <QLibrary>
#include <QWindow>

#include <array>

namespace veldmark {

void leaveOutOfTaskbar(QWindow &window)
{
#if QT_CONFIG(xcb)
    const auto *x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    if (QGuiApplication::platformName() != QLatin1String("xcb") || !x11 || !x11->display())
        return;
    // Xlib is loaded, since Qt's X platform plugin uses it.
    using InternAtom = unsigned long (*)(Display *, const char *, int);
    using ChangeProperty = int (*)(Display *, unsigned long, unsigned long, unsigned long, int, int,
                                   const unsigned char *, int);
    static QLibrary library(QStringLiteral("X11"), 6);
    static const auto atom = reinterpret_cast<InternAtom>(library.resolve("XInternAtom"));
    static const auto change = reinterpret_cast<ChangeProperty>(library.resolve("XChangeProperty"));
    if (!atom || !change)
        return;
    constexpr unsigned long atomType = 4; // XA_ATOM
    // PropModeAppend keeps the states that Qt has set (the window stays on top). Qt keeps this
    // state, too.
    constexpr int append = 2;
    Display *const display = x11->display();
    const std::array words{atom(display, "_NET_WM_STATE_SKIP_TASKBAR", 0),
                           atom(display, "_NET_WM_STATE_SKIP_PAGER", 0)};
    change(display, window.winId(), atom(display, "_NET_WM_STATE", 0), atomType, 32, append,
           reinterpret_cast<const unsigned char *>(words.data()), static_cast<int>(words.size()));
#else
    Q_UNUSED(window)
#endif
}

} // namespace veldmark
