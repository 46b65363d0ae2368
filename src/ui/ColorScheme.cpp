#include "ui/ColorScheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QEvent>
#include <QFont>
#include <QGlyphRun>
#include <QGuiApplication>
#include <QPalette>
#include <QTextLayout>

namespace veldmark {

namespace {

const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString portalSettings = QStringLiteral("org.freedesktop.portal.Settings");
const QString colorScheme = QStringLiteral("color-scheme");
const QString animations = QStringLiteral("enable-animations");

// A font with flags shapes the pair of letters into one glyph.
bool drawsFlags()
{
    QTextLayout layout(ColorScheme::flag(QStringLiteral("se")), QFont());
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    qsizetype glyphs = 0;
    bool missing = false;
    for (const QGlyphRun &run : layout.glyphRuns()) {
        for (const quint32 index : run.glyphIndexes()) {
            ++glyphs;
            missing |= index == 0;
        }
    }
    return glyphs == 1 && !missing;
}

} // namespace

ColorScheme::ColorScheme(QObject *parent) : QObject(parent)
{
    QObject::connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this,
                     &ColorScheme::changed);
    readPalette();
    qApp->installEventFilter(this);
    if (!QDBusConnection::sessionBus().isConnected())
        return;
    QDBusConnection::sessionBus().connect(portal, portalPath, portalSettings,
                                          QStringLiteral("SettingChanged"), this,
                                          SLOT(onSettingChanged(QString, QString, QDBusVariant)));
    askPortal(QStringLiteral("org.freedesktop.appearance"), colorScheme);
    askPortal(QStringLiteral("org.gnome.desktop.interface"), animations);
}

bool ColorScheme::mirrored()
{
    return QGuiApplication::isRightToLeft();
}

bool ColorScheme::flagsDrawn() const
{
    if (!m_flagsDrawn)
        m_flagsDrawn = drawsFlags();
    return *m_flagsDrawn;
}

QString ColorScheme::flag(const QString &country)
{
    constexpr char32_t regionalIndicatorA = 0x1F1E6;
    QString flag;
    for (const QChar letter : country.toLower()) {
        if (country.size() != 2 || letter < u'a' || letter > u'z')
            return {};
        const char32_t symbol = regionalIndicatorA + (letter.unicode() - u'a');
        flag += QString::fromUcs4(&symbol, 1);
    }
    return flag;
}

void ColorScheme::force(bool dark, bool reducedMotion)
{
    m_forced = true;
    m_dark = dark;
    m_reducedMotion = reducedMotion;
    Q_EMIT changed();
}

void ColorScheme::askPortal(const QString &group, const QString &key)
{
    QDBusMessage call = QDBusMessage::createMethodCall(portal, portalPath, portalSettings,
                                                       QStringLiteral("Read"));
    call << group << key;
    auto *watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call),
                                                this);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, key, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (!reply.isError())
            take(key, reply.value().variant());
        watcher->deleteLater();
    });
}

void ColorScheme::onSettingChanged(const QString &group, const QString &key,
                                   const QDBusVariant &value)
{
    if (group == QLatin1String("org.freedesktop.appearance")
        || group == QLatin1String("org.gnome.desktop.interface"))
        take(key, value.variant());
}

void ColorScheme::take(const QString &key, const QVariant &value)
{
    // Portals wrap the value in a second variant.
    const QVariant plain = value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>().variant()
                                                            : value;
    if (m_forced)
        return;
    if (key == colorScheme && plain.toUInt() != 0) { // 0: no preference
        m_portalDecides = true;
        m_dark = plain.toUInt() == 1;
    } else if (key == colorScheme) {
        m_portalDecides = false;
        readPalette();
    } else if (key == animations) {
        m_reducedMotion = !plain.toBool();
    }
    Q_EMIT changed();
}

void ColorScheme::readPalette()
{
    if (m_forced || m_portalDecides)
        return;
    const QPalette palette = QGuiApplication::palette();
    m_dark = palette.color(QPalette::Window).lightness()
        < palette.color(QPalette::WindowText).lightness();
}

bool ColorScheme::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) {
        readPalette();
        Q_EMIT changed();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace veldmark
