#include "ui/GraphPictures.h"

#include "ui/Symbols.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include <cmath>

namespace veldmark {

namespace {

constexpr qsizetype mostPictures = 4000;
constexpr double labelHeight = 17;

QString named(const char *kind, std::initializer_list<QString> parts)
{
    QString key = QLatin1String(kind);
    for (const QString &part : parts)
        key += u'\n' + part;
    return key;
}

// The bounds of the drawn pixels.
QRect inked(const QImage &image)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > 64)
                bounds |= QRect(x, y, 1, 1);
    return bounds;
}

QString number(double value)
{
    return QString::number(std::lround(value * 16));
}

QString number(const QColor &color)
{
    return QString::number(color.rgba());
}

} // namespace

void GraphPictures::prepare(double scale, const QFont &font)
{
    if (scale == m_scale && font == m_font)
        return;
    m_scale = scale;
    m_font = font;
    m_pictures.clear();
}

void GraphPictures::trim()
{
    if (m_pictures.size() > mostPictures)
        m_pictures.clear();
}

const QImage &GraphPictures::kept(const QString &key, QSizeF size,
                                  const std::function<void(QPainter &)> &draw)
{
    const auto known = m_pictures.constFind(key);
    if (known != m_pictures.constEnd())
        return *known;
    QImage image(static_cast<int>(std::ceil(size.width() * m_scale)),
                 static_cast<int>(std::ceil(size.height() * m_scale)),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (!image.isNull()) {
        QPainter painter(&image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        painter.scale(m_scale, m_scale);
        draw(painter);
    }
    return *m_pictures.insert(key, image);
}

const QImage &GraphPictures::disc(double radius, double ring, const QColor &ringColor,
                                  const QColor &fill)
{
    const double size = 2 * radius + ring + 2;
    return kept(named("disc", {number(radius), number(ring), number(ringColor), number(fill)}),
                {size, size}, [&](QPainter &painter) {
                    painter.setPen(QPen(ringColor, ring));
                    painter.setBrush(fill);
                    painter.drawEllipse(QPointF(size / 2, size / 2), radius, radius);
                });
}

const QImage &GraphPictures::symbol(const QString &name, double size, const QColor &color)
{
    return kept(named("symbol", {name, number(size), number(color)}), {size, size},
                [&](QPainter &painter) {
                    const int pixels = painter.device()->width();
                    painter.resetTransform();
                    painter.drawImage(0, 0, Symbols::image(name, pixels, color));
                });
}

const QImage &GraphPictures::country(const QString &text, bool emoji, const QColor &ink)
{
    constexpr double size = 26;
    return kept(named(emoji ? "flag" : "letters", {text, number(ink)}), {size, size},
                [&](QPainter &painter) {
                    QFont font = m_font;
                    font.setPixelSize(emoji ? 17 : 11);
                    font.setWeight(emoji ? QFont::Normal : QFont::DemiBold);
                    // The middle of a text line is not the middle of the flag or the capitals in
                    // it. So draw into a second image and centre the drawn pixels.
                    const auto *target = static_cast<const QImage *>(painter.device());
                    QImage aside(target->size(), QImage::Format_ARGB32_Premultiplied);
                    aside.fill(Qt::transparent);
                    QPainter drawer(&aside);
                    drawer.scale(m_scale, m_scale);
                    drawer.setFont(font);
                    drawer.setPen(ink);
                    drawer.drawText(QRectF(0, 0, size, size), Qt::AlignCenter, text);
                    drawer.end();
                    const QRect bounds = inked(aside);
                    painter.resetTransform();
                    painter.drawImage(QPoint((target->width() - bounds.width()) / 2,
                                             (target->height() - bounds.height()) / 2),
                                      aside, bounds);
                });
}

const QImage &GraphPictures::label(const QString &text, double room, const QColor &ink,
                                   const QColor &ground)
{
    const QString key = named("label", {text, number(room), number(ink), number(ground)});
    const auto known = m_pictures.constFind(key);
    if (known != m_pictures.constEnd())
        return *known;
    constexpr double rim = 2;
    QFont font = m_font;
    font.setPixelSize(12);
    const QFontMetricsF metrics(font);
    const QString shortened = metrics.elidedText(text, Qt::ElideMiddle, room - 2 * rim);
    const QSizeF size(std::ceil(metrics.horizontalAdvance(shortened)) + 2 * rim, labelHeight);
    const QPointF start(rim, (labelHeight + metrics.ascent() - metrics.descent()) / 2);
    return kept(key, size, [&](QPainter &painter) {
        QPainterPath shape;
        shape.addText(start, font, shortened);
        QColor halo = ground;
        halo.setAlphaF(0.85F);
        painter.strokePath(shape, QPen(halo, 2 * rim, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setFont(font);
        painter.setPen(ink);
        painter.drawText(start, shortened);
    });
}

} // namespace veldmark
