#pragma once

#include "ui/PanelModel.h"
#include "ui/Session.h"

#include <QMenu>
#include <QSystemTrayIcon>

namespace veldmark {

// The program's icon in the tray: a symbol that differs by shape with the session's state, drawn to
// stand out from the tray's ground by its colour, or else (no panel tells its own) by its edge, and
// a menu for desktops whose tray shows nothing else.
class Tray : public QObject {
    Q_OBJECT

public:
    // Where the icon stands: in a tray, or in the menu bar of a Mac, which colours it by itself and
    // opens a menu that it knows of with every click.
    enum class Place { tray, menuBar };
    static Place place();

    // `session` must outlive the tray. Not before TrayHost tells of a host.
    explicit Tray(Session &session, Place where = place());

    QRect anchor() const; // where the icon is, as far as the desktop tells

    // Every size in which trays ask for it.
    static QIcon icon(const QString &symbol, bool onDark);
    // A shape alone, for a place that colours it.
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
    QString m_shown; // symbol and ground of the icon in place
};

} // namespace veldmark
