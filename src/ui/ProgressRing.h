#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace veldmark {

// The ring round the power button: a track, and an arc from the top over `value` (0…1) of the
// circle, rotated by `turn` (0…1). QML animates `turn` during waits of unknown length.
class ProgressRing : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double value MEMBER m_value NOTIFY changed)
    Q_PROPERTY(double turn MEMBER m_turn NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(QColor track MEMBER m_track NOTIFY changed)

public:
    explicit ProgressRing(QQuickItem *parent = nullptr);
    void paint(QPainter *painter) override;

Q_SIGNALS:
    void changed();

private:
    double m_value = 0;
    double m_turn = 0;
    QColor m_color;
    QColor m_track;
};

} // namespace veldmark
