#pragma once

#include "circuits/CircuitGraph.h"

#include <QHash>
#include <QPointF>
#include <QSizeF>

namespace veldmark {

// The positions of a graph's nodes in an area of `size` (points; the origin is the top left).
// Columns are at fixed fractions of the width. The nodes of a column share the height between 46
// points from the top and 18 from the bottom, in rows of at most 64, centred.
struct GraphLayout {
    QHash<QString, QPointF> positions; // node id → its centre

    static constexpr int columns = 5;
    static double columnAt(int column, double width);

    GraphLayout(const CircuitGraph &graph, QSizeF size);
};

} // namespace veldmark
