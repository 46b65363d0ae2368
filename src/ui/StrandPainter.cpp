#include "ui/StrandPainter.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace veldmark {

namespace {

// The curve is the cubic through (0, 0) and (1, 1) with its handles half-way: x(t) = 1.5 t - 1.5 t²
// + t³, rise(t) = 3 t² - 2 t³, bulge(t) = 3 t (1 - t). Every strand is this curve, stretched. So it
// is solved once for evenly spaced x and stored with its slopes.
struct Shape {
    static constexpr int steps = 256;
    struct Point {
        double rise, bulge, riseSlope, bulgeSlope;
    };
    std::array<Point, steps + 1> points;

    Shape()
    {
        double t = 0;
        for (int i = 0; i <= steps; ++i) {
            const double x = static_cast<double>(i) / steps;
            for (int round = 0; round < 8; ++round) // Newton; x(t) has a slope of at least 0.75
                t -= (t * (1.5 + t * (t - 1.5)) - x) / (1.5 + t * (3 * t - 3));
            const double speed = 1.5 + t * (3 * t - 3);
            points[static_cast<size_t>(i)] = {t * t * (3 - 2 * t), 3 * t * (1 - t),
                                              6 * t * (1 - t) / speed, (3 - 6 * t) / speed};
        }
    }
};

// Mixes `share` of 256 parts of `color` over `below`, in both lanes of a word at once.
quint32 mixed(quint32 below, quint32 color, quint32 share)
{
    constexpr quint32 lanes = 0x00ff00ff;
    const quint32 rest = 256 - share;
    const quint32 low = ((color & lanes) * share + (below & lanes) * rest) >> 8;
    const quint32 high = ((color >> 8) & lanes) * share + ((below >> 8) & lanes) * rest;
    return (low & lanes) | (high & ~lanes);
}

// The coverage of a pixel whose centre is `distance` from the middle of a line.
double coverage(double half, double distance)
{
    return std::clamp(half + 0.5 - distance, 0.0, 1.0);
}

} // namespace

StrandPainter::StrandPainter(QImage &canvas, double scale)
    : m_bits(canvas.bits()),
      m_stride(canvas.bytesPerLine()),
      m_width(canvas.width()),
      m_height(canvas.height()),
      m_scale(scale)
{
}

void StrandPainter::draw(const Strand &strand)
{
    static const Shape shape;
    const double left = strand.from.x() * m_scale;
    const double length = strand.to.x() * m_scale - left;
    if (length < 1)
        return;
    const double top = strand.from.y() * m_scale;
    const double rise = strand.to.y() * m_scale - top;
    const double bulge = strand.bulge * m_scale;
    const double half = strand.width * m_scale / 2;
    const bool hasEdge = strand.edge > 0 && strand.edgeColor.alpha() > 0;
    const double outer = half + (hasEdge ? strand.edge * m_scale : 0);
    const quint32 color = strand.color.rgb() | 0xff000000;
    const quint32 edgeColor = strand.edgeColor.rgb() | 0xff000000;
    const double opacity = 256.0 * strand.color.alphaF();
    const double edgeOpacity = 256.0 * strand.edgeColor.alphaF();

    const int first = std::max(0, static_cast<int>(std::ceil(left - 0.5)));
    const int last = std::min(m_width - 1, static_cast<int>(std::floor(left + length - 0.5)));
    for (int x = first; x <= last; ++x) {
        const double along = std::clamp((x + 0.5 - left) / length, 0.0, 1.0);
        const auto &point = shape.points[static_cast<size_t>(std::lround(along * Shape::steps))];
        // Between the stored points the tangent replaces the curve.
        const double offset = along - std::round(along * Shape::steps) / Shape::steps;
        // Per unit of the strand's length.
        const double slope = rise * point.riseSlope + bulge * point.bulgeSlope;
        const double y = top + rise * point.rise + bulge * point.bulge + slope * offset;
        const double steepness = slope / length;
        const double cosine = 1 / std::sqrt(1 + steepness * steepness);
        const double reach = (outer + 0.5) / cosine;
        const int from = std::max(0, static_cast<int>(std::ceil(y - reach - 0.5)));
        const int to = std::min(m_height - 1, static_cast<int>(std::floor(y + reach - 0.5)));
        uchar *bits = m_bits + from * m_stride + static_cast<qsizetype>(x) * 4;
        for (int row = from; row <= to; ++row, bits += m_stride) {
            auto *pixel = reinterpret_cast<quint32 *>(bits);
            const double distance = std::abs(row + 0.5 - y) * cosine;
            quint32 value = *pixel;
            if (hasEdge)
                value = mixed(value, edgeColor,
                              static_cast<quint32>(edgeOpacity * coverage(outer, distance)));
            *pixel = mixed(value, color, static_cast<quint32>(opacity * coverage(half, distance)));
        }
    }
}

} // namespace veldmark
