#pragma once

#include "ui/TrafficHistory.h"

#include <QColor>
#include <QPointer>
#include <QQuickPaintedItem>

namespace veldmark {

// Two curves over the last two minutes: received data filled, sent data as a line. Their common
// scale is the highest rate shown, at least 1024 bytes per second. Redraws when the history
// changes, and only while visible.
class TrafficPlot : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        veldmark::TrafficHistory *history READ history WRITE setHistory NOTIFY historyChanged)
    Q_PROPERTY(QColor downColor MEMBER m_downColor NOTIFY colorsChanged)
    Q_PROPERTY(QColor upColor MEMBER m_upColor NOTIFY colorsChanged)
    Q_PROPERTY(QColor gridColor MEMBER m_gridColor NOTIFY colorsChanged)

public:
    explicit TrafficPlot(QQuickItem *parent = nullptr);
    TrafficHistory *history() const { return m_history; }
    void setHistory(TrafficHistory *history);
    void paint(QPainter *painter) override;

Q_SIGNALS:
    void historyChanged();
    void colorsChanged();

private:
    QPointer<TrafficHistory> m_history;
    QColor m_downColor;
    QColor m_upColor;
    QColor m_gridColor;
};

} // namespace veldmark
