#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>

namespace veldmark {

// A curve from one node of the circuit graph to another. Places and widths are in points.
struct Strand {
    QPointF from;
    QPointF to;       // to the right of `from`
    double bulge = 0; // how far the curve's handles are moved down; the middle moves by 3/4 of it
    double width = 1;
    QColor color;    // its alpha counts
    double edge = 0; // width of the rim on either side; 0 = none
    QColor edgeColor;
};

// Draws strands directly into an image's pixels, with smooth edges. A strand runs from left to
// right and crosses each column of pixels once, so its position, slope and coverage there are
// computed directly. That is many times faster than stroking a path, as a graph of hundreds of
// curves needs.
class StrandPainter {
public:
    // `canvas` must outlive the painter and be Format_RGB32 or Format_ARGB32_Premultiplied; `scale`
    // is its pixels per point.
    StrandPainter(QImage &canvas, double scale);

    // Parts outside the canvas are left out. A strand that does not run to the right is not drawn.
    void draw(const Strand &strand);

private:
    uchar *m_bits;
    qsizetype m_stride; // bytes
    int m_width;        // pixels
    int m_height;
    double m_scale;
};

} // namespace veldmark
