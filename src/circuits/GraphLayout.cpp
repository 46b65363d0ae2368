#include "circuits/GraphLayout.h"

#include <algorithm>
#include <array>

namespace veldmark {

double GraphLayout::columnAt(int column, double width)
{
    constexpr std::array<double, columns> fractions{0.07, 0.285, 0.5, 0.715, 0.895};
    return fractions[static_cast<size_t>(column)] * width;
}

GraphLayout::GraphLayout(const CircuitGraph &graph, QSizeF size)
{
    constexpr double top = 46;
    constexpr double bottom = 18;
    constexpr double tallestRow = 64;

    std::array<int, columns> count{};
    for (const CircuitGraph::Node &node : graph.nodes)
        ++count[static_cast<size_t>(node.column)];

    // In a window lower than the margins all nodes of a column are at one position.
    const double band = std::max(size.height() - top - bottom, 0.0);
    std::array<double, columns> row{};
    std::array<double, columns> next{}; // y of the column's next node
    for (size_t column = 0; column < count.size(); ++column) {
        if (count[column] == 0)
            continue;
        row[column] = std::min(band / count[column], tallestRow);
        next[column] = top + (band - row[column] * count[column]) / 2 + row[column] / 2;
    }

    positions.reserve(static_cast<qsizetype>(graph.nodes.size()));
    for (const CircuitGraph::Node &node : graph.nodes) {
        const auto column = static_cast<size_t>(node.column);
        positions.insert(node.id, {columnAt(node.column, size.width()), next[column]});
        next[column] += row[column];
    }
}

} // namespace veldmark
