#include "app/Tray.h"

#include "ui/Symbols.h"

#include <QCursor>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

#include <algorithm>

namespace veldmark {

Tray::Tray(Session &session, Place where) : m_place(where), m_panel(session)
{
    QObject::connect(m_menu.addAction(tr("Open Veldmark")), &QAction::triggered, this,
                     &Tray::openWanted);
    m_power = m_menu.addAction(QString());
    QObject::connect(m_power, &QAction::triggered, &m_panel, &PanelModel::pressPower);
    m_menu.addSeparator();
    QObject::connect(m_menu.addAction(tr("Quit")), &QAction::triggered, this, &Tray::quitWanted);
    if (m_place == Place::tray)
        m_icon.setContextMenu(&m_menu);
    QObject::connect(&m_icon, &QSystemTrayIcon::activated, this, &Tray::onActivated);
    QObject::connect(&m_panel, &PanelModel::changed, this, &Tray::update);
    update();
    m_icon.show();
}

void Tray::onActivated(QSystemTrayIcon::ActivationReason reason)
{
    if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick)
        Q_EMIT panelWanted();
    else if (reason == QSystemTrayIcon::Context && m_place == Place::menuBar)
        m_menu.popup(anchor().bottomLeft());
}

bool Tray::groundIsDark()
{
    // GNOME's panel is dark in its light appearance, too. On other desktops the panel follows the
    // palette.
    if (qEnvironmentVariable("XDG_CURRENT_DESKTOP").contains(QLatin1String("GNOME")))
        return true;
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness()
        < palette.color(QPalette::WindowText).lightness();
}

namespace {

// Draws the symbol with a thin edge in the other colour.
QImage edged(const QString &symbol, int pixels, const QColor &ink, const QColor &edge)
{
    const int width = std::max(1, pixels / 20);
    const int inner = pixels - 2 * width;
    const QImage around = Symbols::image(symbol, inner, edge);
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    for (int y = 0; y <= 2 * width; ++y)
        for (int x = 0; x <= 2 * width; ++x)
            painter.drawImage(x, y, around);
    painter.drawImage(width, width, Symbols::image(symbol, inner, ink));
    return image;
}

} // namespace

QIcon Tray::icon(const QString &symbol, bool onDark)
{
    const QColor light(0xf2, 0xf2, 0xf7), dark(0x1a, 0x1a, 0x22);
    QIcon icon;
    for (const int pixels : {16, 22, 24, 32, 44, 48, 64})
        icon.addPixmap(QPixmap::fromImage(
            edged(symbol, pixels, onDark ? light : dark, onDark ? dark : light)));
    return icon;
}

QIcon Tray::mask(const QString &symbol)
{
    QIcon icon;
    for (const int pixels : {16, 18, 32, 36})
        icon.addPixmap(QPixmap::fromImage(Symbols::image(symbol, pixels, Qt::black)));
    icon.setIsMask(true);
    return icon;
}

QRect Tray::anchor() const
{
    const QRect place = m_icon.geometry();
    return place.isValid() ? place : QRect(QCursor::pos(), QSize(1, 1));
}

void Tray::update()
{
    const bool dark = groundIsDark();
    const QString wanted = m_panel.symbol() + (dark ? u'd' : u'l');
    if (std::exchange(m_shown, wanted) != wanted)
        m_icon.setIcon(m_place == Place::menuBar ? mask(m_panel.symbol())
                                                 : icon(m_panel.symbol(), dark));
    const QString tip = QStringLiteral("Veldmark: ") + m_panel.title();
    if (m_icon.toolTip() != tip)
        m_icon.setToolTip(tip);
    m_power->setVisible(!m_panel.powerLabel().isEmpty());
    m_power->setText(m_panel.powerLabel());
    m_power->setEnabled(m_panel.powerEnabled());
}

} // namespace veldmark
