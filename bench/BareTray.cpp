// The yardstick of the desktop figures: a minimal Qt Quick program with a tray icon and a window;
// --hidden shows no window.
#include <QApplication>
#include <QMenu>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QSystemTrayIcon>

int main(int argc, char **argv)
{
    qputenv("QT_QUICK_BACKEND", "software");
    QApplication application(argc, argv);
    application.setQuitOnLastWindowClosed(false);
    QPixmap picture(22, 22);
    picture.fill(Qt::white);
    QMenu menu;
    menu.addAction(QStringLiteral("Quit"), &application, &QApplication::quit);
    QSystemTrayIcon icon{QIcon(picture)};
    icon.setContextMenu(&menu);
    icon.show();
    QQmlEngine engine;
    if (application.arguments().contains(QStringLiteral("--hidden")))
        return QApplication::exec();
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nWindow { width: 400; height: 700; visible: true\n"
                      "Text { anchors.centerIn: parent; text: \"Hello\" } }",
                      QUrl());
    const std::unique_ptr<QObject> window(component.create());
    return window ? QApplication::exec() : 1;
}
