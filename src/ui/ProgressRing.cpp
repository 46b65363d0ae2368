#include "ui/ProgressRing.h"

#include <QPainter>

#include <algorithm>

namespace veldmark {

ProgressRing::ProgressRing(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    QObject::connect(this, &ProgressRing::changed, this, [this] { update(); });
}

void ProgressRing::paint(QPainter *painter)
{
    constexpr double thickness = 6;
    constexpr int fullCircle = 360 * 16; // QPainter counts sixteenths of a degree
    const double half = thickness / 2;
    const QRectF ring(half, half, width() - thickness, height() - thickness);
    painter->setPen(QPen(m_track, thickness));
    painter->drawEllipse(ring);
    const int span = static_cast<int>(std::clamp(m_value, 0.0, 1.0) * fullCircle);
    if (span == 0)
        return;
    painter->setPen(QPen(m_color, thickness, Qt::SolidLine, Qt::RoundCap));
    painter->drawArc(ring, 90 * 16 - static_cast<int>(m_turn * fullCircle), -span);
}

} // namespace veldmark
