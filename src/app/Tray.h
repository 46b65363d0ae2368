#pragma once

#include "ui/PanelModel.h"
#include "ui/Session.h"

#include <QMenu>
#include <QSystemTrayIcon>

namespace veldmark {

// The program's icon in the tray, and its menu. The symbol's shape tells the session's state. The
// icon contrasts with the panel by its colour or, as no panel tells its own colour, by its edge.
// The menu serves desktops whose tray shows nothing else.
class Tray : public QObject {
    Q_OBJECT

public:
    // Where the icon is: in a tray, or in the menu bar of a Mac. The menu bar colours the icon
    // itself and opens the menu with every click.
    enum class Place { tray, menuBar };

    // `session` must outlive the tray. Construct it only after TrayHost reports a host.
    explicit Tray(Session &session, Place where = Place::tray);

    QRect anchor() const; // the icon's place, as far as the desktop tells it

    // The icon in every size that trays ask for.
    static QIcon icon(const QString &symbol, bool onDark);
    // The shape alone, for a place that colours it.
    static QIcon mask(const QString &symbol);

Q_SIGNALS:
    void panelWanted();
    void openWanted();
    void quitWanted();

private:
    void update();
    static bool groundIsDark();

    void onActivated(QSystemTrayIcon::ActivationReason reason);

    Place m_place;
    PanelModel m_panel;
    QMenu m_menu;
    QSystemTrayIcon m_icon{this};
    QAction *m_power = nullptr;
    QString m_shown; // symbol and background of the current icon
};

} // namespace veldmark
