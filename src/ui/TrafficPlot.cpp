#include "ui/TrafficPlot.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <utility>

namespace veldmark {

TrafficPlot::TrafficPlot(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    QObject::connect(this, &TrafficPlot::colorsChanged, this, [this] { update(); });
}

void TrafficPlot::setHistory(TrafficHistory *history)
{
    if (m_history == history)
        return;
    if (m_history)
        m_history->disconnect(this);
    m_history = history;
    if (history)
        QObject::connect(history, &TrafficHistory::changed, this, [this] { update(); });
    Q_EMIT historyChanged();
    update();
}

void TrafficPlot::paint(QPainter *painter)
{
    constexpr double lineWidth = 1.5;
    const double w = width();
    const double bottom = height() - lineWidth;
    painter->setPen(QPen(m_gridColor, 1));
    painter->drawLine(QPointF(0, bottom), QPointF(w, bottom));
    if (!m_history || m_history->samples().size() < 2)
        return;

    using Seconds = std::chrono::duration<double>;
    const auto &samples = m_history->samples();
    double peak = 1024; // bytes per second; keeps small traffic small
    for (const auto &sample : samples)
        peak = std::max({peak, sample.down, sample.up});
    const auto last = samples.back().at;
    const auto curve = [&](double TrafficHistory::Sample::*rate) {
        QPainterPath path;
        bool started = false; // isEmpty() is true for a path with one point
        for (const auto &sample : samples) {
            const double age = Seconds(last - sample.at) / Seconds(TrafficHistory::span);
            const QPointF point(w * (1 - age),
                                bottom - (bottom - lineWidth) * (sample.*rate / peak));
            std::exchange(started, true) ? path.lineTo(point) : path.moveTo(point);
        }
        return path;
    };

    const QPainterPath down = curve(&TrafficHistory::Sample::down);
    QPainterPath area = down;
    area.lineTo(w, bottom);
    area.lineTo(down.elementAt(0).x, bottom);
    area.closeSubpath();
    QColor fill = m_downColor;
    fill.setAlphaF(0.18F);
    painter->fillPath(area, fill);
    painter->strokePath(down,
                        QPen(m_downColor, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->strokePath(curve(&TrafficHistory::Sample::up),
                        QPen(m_upColor, lineWidth, Qt::DashLine, Qt::RoundCap, Qt::RoundJoin));
}

} // namespace veldmark
