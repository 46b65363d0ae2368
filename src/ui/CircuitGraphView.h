#pragma once

#include "circuits/CircuitGraph.h"
#include "circuits/GraphLayout.h"
#include "ui/CircuitsModel.h"

#include <QColor>
#include <QHash>
#include <QImage>
#include <QPointer>
#include <QQuickPaintedItem>

namespace veldmark {

// Draws the circuits from left to right: this computer, entries, middles, exits, sites. The followed
// circuit stands out and the rest recedes; a click on a node follows the next circuit through it.
// Labels never overlap: they are shortened to their column, and left out where a column is too
// dense, except for the followed and the hovered nodes.
class CircuitGraphView : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(veldmark::CircuitsModel *model READ model WRITE setModel NOTIFY modelChanged)
    Q_PROPERTY(QColor background MEMBER m_background NOTIFY colorsChanged)
    Q_PROPERTY(QColor ink MEMBER m_ink NOTIFY colorsChanged)
    Q_PROPERTY(QColor faintInk MEMBER m_faintInk NOTIFY colorsChanged)
    Q_PROPERTY(QColor guide MEMBER m_guide NOTIFY colorsChanged)
    Q_PROPERTY(QColor outline MEMBER m_outline NOTIFY colorsChanged)
    Q_PROPERTY(bool drawFlags MEMBER m_drawFlags NOTIFY colorsChanged)
    Q_PROPERTY(QString hoveredHelp READ hoveredHelp NOTIFY hoveredChanged)
    Q_PROPERTY(QPointF hoveredAt READ hoveredAt NOTIFY hoveredChanged)

public:
    explicit CircuitGraphView(QQuickItem *parent = nullptr);

    CircuitsModel *model() const { return m_model; }
    void setModel(CircuitsModel *model);
    QString hoveredHelp() const; // the help of the node under the pointer, or empty
    QPointF hoveredAt() const;
    void paint(QPainter *painter) override;

Q_SIGNALS:
    void modelChanged();
    void colorsChanged();
    void hoveredChanged();

protected:
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void hoverMoveEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void rebuild();
    void layOut();
    const CircuitGraph::Node *nodeAt(QPointF point) const;
    void setHovered(const QString &id);
    void drawGuides(QPainter &painter) const;
    void drawEdges(QPainter &painter, bool followed) const;
    void drawNode(QPainter &painter, const CircuitGraph::Node &node);
    void drawLabel(QPainter &painter, const CircuitGraph::Node &node, QPointF center) const;
    bool isFollowed(const CircuitGraph::Node &node) const;
    QColor nodeColor(const CircuitGraph::Node &node) const;

    QPointer<CircuitsModel> m_model;
    std::vector<CircuitInfo> m_drawn; // what the graph was built from
    CircuitGraph m_graph;
    QHash<QString, QPointF> m_positions; // node id → centre
    QHash<QString, QColor> m_colors;     // circuit id → palette colour
    QHash<QString, double> m_strands;    // circuit id → sideways shift of its edges
    std::array<double, 5> m_rows{};      // the distance of a column's nodes
    QHash<QString, QImage> m_symbols;    // drawn once for each size and colour
    QString m_hovered;                   // node id
    QColor m_background, m_ink, m_faintInk, m_guide, m_outline;
    bool m_drawFlags = false;
};

} // namespace veldmark
