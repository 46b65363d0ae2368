#pragma once

#include <QColor>
#include <QFont>
#include <QHash>
#include <QImage>
#include <QPainter>

#include <functional>

namespace veldmark {

// The small pictures that make up the circuit graph: discs, symbols, countries and labels. Each is
// drawn once and cached; a graph has hundreds of nodes but few kinds of them. Sizes are in points,
// the pictures in pixels.
class GraphPictures {
public:
    // Sets the pixels per point and the font of all texts. Drops pictures made for other values.
    void prepare(double scale, const QFont &font);
    // Drops all pictures when there are more than a large graph needs (labels of closed circuits).
    void trim();

    // A filled circle with a ring of the given width on its edge.
    const QImage &disc(double radius, double ring, const QColor &ringColor, const QColor &fill);
    const QImage &symbol(const QString &name, double size, const QColor &color);
    // A country's flag as text, or its letters; `emoji` tells which.
    const QImage &country(const QString &text, bool emoji, const QColor &ink);
    // One line of text, shortened in its middle to at most `room`, with a rim in the colour of the
    // ground so that it is readable above other drawings.
    const QImage &label(const QString &text, double room, const QColor &ink, const QColor &ground);

private:
    const QImage &kept(const QString &key, QSizeF size,
                       const std::function<void(QPainter &)> &draw);

    double m_scale = 1;
    QFont m_font;
    QHash<QString, QImage> m_pictures;
};

} // namespace veldmark
