#pragma once

#include "circuits/CircuitGraph.h"
#include "circuits/GraphLayout.h"
#include "ui/CircuitsModel.h"
#include "ui/GraphPictures.h"

#include <QColor>
#include <QImage>
#include <QPointer>
#include <QQuickPaintedItem>

namespace veldmark {

// Draws the circuits from left to right: this computer, entries, middles, exits, sites. The
// followed circuit stands out and the rest fades; a click on a node follows the next circuit
// through it. While no circuit is followed, the circuits through the hovered node stand out. Labels
// never overlap: they are shortened to their column, and left out in dense columns, except for what
// stands out.
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
    Q_PROPERTY(bool standingOut READ standingOut NOTIFY standingOutChanged)
    Q_PROPERTY(double emphasis READ emphasis WRITE setEmphasis NOTIFY emphasisChanged)

public:
    explicit CircuitGraphView(QQuickItem *parent = nullptr);

    CircuitsModel *model() const { return m_model; }
    void setModel(CircuitsModel *model);
    QString hoveredHelp() const; // the help of the hovered node, or empty
    QPointF hoveredAt() const;
    // Whether some circuits stand out from the rest, and how far at present: 0…1. QML animates the
    // emphasis.
    bool standingOut() const { return m_standingOut; }
    double emphasis() const { return m_emphasis; }
    void setEmphasis(double emphasis);
    void paint(QPainter *painter) override;

Q_SIGNALS:
    void modelChanged();
    void colorsChanged();
    void hoveredChanged();
    void standingOutChanged();
    void emphasisChanged();

protected:
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverMoveEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    struct Circuit {
        QString id;
        QColor color;
        double bulge = 0; // points by which its strands bend from the straight line
        bool lit = false; // the circuit stands out
    };
    struct Link {
        QPointF from;
        QPointF to;
        size_t circuit = 0; // index into m_circuits
        double bulge = 0;   // points
    };
    struct Place { // the node with the same index in the graph
        QPointF at;
        std::vector<size_t> circuits;
        bool lit = false;
    };

    void rebuild();
    void layOut();
    void light(); // decides which circuits and nodes stand out
    const CircuitGraph::Node *nodeAt(QPointF point) const;
    const CircuitGraph::Node *hoveredNode() const;
    QString askedBy(const CircuitGraph::Node &node) const; // of a site, else empty
    void setHovered(const QString &id);
    void drawGuides(QPainter &painter) const;
    void drawStrands(QPainter &painter, double scale, bool lit);
    void drawNode(QPainter &painter, double scale, size_t index);
    void drawLabel(QPainter &painter, double scale, size_t index, QPointF below);
    double opacity(bool lit, double faded) const;
    QColor ringColor(const Place &place) const;

    QPointer<CircuitsModel> m_model;
    std::vector<CircuitInfo> m_drawn; // the circuits that the graph was built from
    CircuitGraph m_graph;
    std::vector<Circuit> m_circuits;
    std::vector<Place> m_places;
    std::vector<Link> m_links;
    std::array<double, 5> m_rows{}; // the smallest distance between the nodes of each column
    QString m_hovered;              // node id
    bool m_standingOut = false;
    bool m_followedOut = false; // the circuits that stand out, or did last, are followed
    double m_emphasis = 0;
    QImage m_canvas;
    GraphPictures m_pictures;
    QColor m_background, m_ink, m_faintInk, m_guide, m_outline;
    bool m_drawFlags = false;
};

} // namespace veldmark
