#include "ui/CircuitGraphView.h"

#include "ui/ColorScheme.h"
#include "ui/Symbols.h"

#include <QPainter>
#include <QPainterPath>
#include <QQuickWindow>

#include <algorithm>
#include <limits>

namespace veldmark {

namespace {

constexpr double nodeRadius = 13;
constexpr double denseRadius = 7;
constexpr double labelRow = 34; // rows closer than this have no room for a label below the node
constexpr double clickRadius = 20;

QPainterPath curve(QPointF from, QPointF to, double shift)
{
    const double reach = (to.x() - from.x()) * 0.5;
    QPainterPath path(from);
    path.cubicTo(QPointF(from.x() + reach, from.y() + shift), QPointF(to.x() - reach, to.y() + shift), to);
    return path;
}

} // namespace

CircuitGraphView::CircuitGraphView(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    setAcceptHoverEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton);
    QObject::connect(this, &CircuitGraphView::colorsChanged, this, [this] { update(); });
}

void CircuitGraphView::setModel(CircuitsModel *model)
{
    if (m_model == model)
        return;
    if (m_model)
        m_model->disconnect(this);
    m_model = model;
    if (model)
        QObject::connect(model, &CircuitsModel::changed, this, &CircuitGraphView::rebuild);
    rebuild();
    Q_EMIT modelChanged();
}

void CircuitGraphView::rebuild()
{
    if (!m_model)
        return;
    if (m_drawn != m_model->circuits() || m_graph.nodes.empty()) {
        m_drawn = m_model->circuits();
        m_graph = CircuitGraph::build(m_drawn, m_model->computer());
        m_colors.clear();
        m_strands.clear();
        QHash<QString, int> legs;
        for (size_t i = 0; i < m_drawn.size(); ++i) {
            m_colors.insert(m_drawn[i].id, CircuitsModel::paletteColor(i));
            // The legs of one conflux set are strands that part and meet again at the exit.
            if (!m_drawn[i].confluxID.isEmpty())
                m_strands.insert(m_drawn[i].id, legs[m_drawn[i].confluxID]++ % 2 == 0 ? -7.0 : 7.0);
        }
        layOut();
    }
    update();
}

void CircuitGraphView::layOut()
{
    m_positions = GraphLayout(m_graph, size()).positions;
    std::array<double, 5> last{};
    last.fill(-std::numeric_limits<double>::infinity());
    m_rows.fill(std::numeric_limits<double>::infinity());
    for (const CircuitGraph::Node &node : m_graph.nodes) {
        const auto column = static_cast<size_t>(node.column);
        const double y = m_positions.value(node.id).y();
        m_rows[column] = std::min(m_rows[column], y - last[column]);
        last[column] = y;
    }
}

void CircuitGraphView::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickPaintedItem::geometryChange(now, before);
    layOut();
    update();
}

const CircuitGraph::Node *CircuitGraphView::nodeAt(QPointF point) const
{
    const CircuitGraph::Node *nearest = nullptr;
    double best = clickRadius;
    for (const CircuitGraph::Node &node : m_graph.nodes) {
        const double distance = QLineF(point, m_positions.value(node.id)).length();
        if (distance <= best) {
            best = distance;
            nearest = &node;
        }
    }
    return nearest;
}

void CircuitGraphView::setHovered(const QString &id)
{
    if (m_hovered == id)
        return;
    m_hovered = id;
    setCursor(id.isEmpty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
    Q_EMIT hoveredChanged();
    update();
}

void CircuitGraphView::hoverMoveEvent(QHoverEvent *event)
{
    const CircuitGraph::Node *node = nodeAt(event->position());
    setHovered(node ? node->id : QString());
}

void CircuitGraphView::hoverLeaveEvent(QHoverEvent *)
{
    setHovered({});
}

void CircuitGraphView::mousePressEvent(QMouseEvent *event)
{
    if (!m_model)
        return;
    const CircuitGraph::Node *node = nodeAt(event->position());
    if (!node || node->kind == CircuitGraph::Kind::mac)
        m_model->follow({});
    else if (const auto next = CircuitGraph::select(*node, m_model->followed()))
        m_model->follow(*next);
}

QString CircuitGraphView::hoveredHelp() const
{
    for (const CircuitGraph::Node &node : m_graph.nodes) {
        if (node.id != m_hovered)
            continue;
        if (node.kind == CircuitGraph::Kind::mac)
            return tr("%1: your real IP only ever reaches the entry relay").arg(node.label);
        const auto count = static_cast<int>(node.circuitIDs.size());
        QString help = node.label + u'\n';
        if (node.relay)
            help += node.relay->country.value_or(tr("Unknown")).toUpper() + QStringLiteral(" · ")
                + node.relay->ip.value_or(tr("Unknown")) + u'\n';
        return help + (count == 1 ? tr("Used by 1 circuit") : tr("Used by %1 circuits").arg(count));
    }
    return {};
}

QPointF CircuitGraphView::hoveredAt() const
{
    return m_positions.value(m_hovered);
}

bool CircuitGraphView::isFollowed(const CircuitGraph::Node &node) const
{
    const QString followed = m_model->followed();
    return followed.isEmpty() || node.kind == CircuitGraph::Kind::mac || node.circuitIDs.contains(followed);
}

QColor CircuitGraphView::nodeColor(const CircuitGraph::Node &node) const
{
    const QString followed = m_model->followed();
    if (node.kind == CircuitGraph::Kind::mac)
        return m_ink;
    if (!followed.isEmpty() && node.circuitIDs.contains(followed))
        return m_colors.value(followed);
    return node.circuitIDs.size() == 1 ? m_colors.value(node.circuitIDs.constFirst()) : m_faintInk;
}

void CircuitGraphView::drawGuides(QPainter &painter) const
{
    const std::array titles{QString(), tr("ENTRY"), tr("MIDDLE"), tr("EXIT"), tr("SITES")};
    QHash<int, double> places;
    for (const CircuitGraph::Node &node : m_graph.nodes)
        places.insert(node.column, m_positions.value(node.id).x());
    QFont font = painter.font();
    font.setPixelSize(11);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 1);
    painter.setFont(font);
    for (auto place = places.cbegin(); place != places.cend(); ++place) {
        const double x = place.value();
        painter.setPen(QPen(m_guide, 1, Qt::DotLine));
        painter.drawLine(QPointF(x, 34), QPointF(x, height() - 6));
        painter.setPen(m_faintInk);
        painter.drawText(QRectF(x - 70, 10, 140, 18), Qt::AlignCenter,
                         titles[static_cast<size_t>(place.key())]);
    }
}

void CircuitGraphView::drawEdges(QPainter &painter, bool followed) const
{
    const QString id = m_model->followed();
    for (const CircuitGraph::Edge &edge : m_graph.edges) {
        if ((edge.circuitID == id) != followed)
            continue;
        const QPainterPath path = curve(m_positions.value(edge.from), m_positions.value(edge.to),
                                        m_strands.value(edge.circuitID));
        QColor color = m_colors.value(edge.circuitID);
        if (!followed && !id.isEmpty())
            color.setAlphaF(0.16F);
        else if (m_outline.alpha() > 0) // light ground: the pale colours need an edge
            painter.strokePath(path, QPen(m_outline, followed ? 4.6 : 2.8));
        painter.strokePath(path, QPen(color, followed ? 3 : 1.6));
    }
}

void CircuitGraphView::drawNode(QPainter &painter, const CircuitGraph::Node &node)
{
    using Kind = CircuitGraph::Kind;
    const QPointF center = m_positions.value(node.id);
    const bool dense = m_rows[static_cast<size_t>(node.column)] < 2 * nodeRadius + 2;
    const double radius = node.kind == Kind::mac ? 18 : dense ? denseRadius : nodeRadius;
    painter.setOpacity(isFollowed(node) ? 1 : 0.3);
    painter.setPen(QPen(nodeColor(node), node.id == m_hovered ? 3 : 2));
    painter.setBrush(m_background);
    painter.drawEllipse(center, radius, radius);

    const auto symbol = [&](const QString &name, double size) {
        const double ratio = window() ? window()->effectiveDevicePixelRatio() : 1.0;
        const int pixels = static_cast<int>(size * ratio);
        const QString key = name + QString::number(pixels) + m_ink.name();
        if (!m_symbols.contains(key))
            m_symbols.insert(key, Symbols::image(name, pixels, m_ink));
        painter.drawImage(QRectF(center.x() - size / 2, center.y() - size / 2, size, size), m_symbols[key]);
    };
    if (node.kind == Kind::mac) {
        symbol(QStringLiteral("laptopcomputer"), 20);
    } else if (!dense && node.kind == Kind::site) {
        symbol(QStringLiteral("globe"), 14);
    } else if (!dense && node.kind == Kind::more) {
        symbol(QStringLiteral("ellipsis"), 14);
    } else if (!dense && node.relay) {
        const QString country = node.relay->country.value_or(QStringLiteral("?"));
        const QString flag = m_drawFlags ? ColorScheme::flag(country) : QString();
        QFont font = painter.font();
        font.setLetterSpacing(QFont::AbsoluteSpacing, 0);
        font.setPixelSize(flag.isEmpty() ? 11 : 15);
        font.setBold(flag.isEmpty());
        painter.setFont(font);
        painter.setPen(m_ink);
        painter.drawText(QRectF(center.x() - 14, center.y() - 14, 28, 28), Qt::AlignCenter,
                         flag.isEmpty() ? country.toUpper() : flag);
    }
    drawLabel(painter, node, center + QPointF(0, radius));
    painter.setOpacity(1);
}

void CircuitGraphView::drawLabel(QPainter &painter, const CircuitGraph::Node &node, QPointF below) const
{
    const QString followed = m_model->followed();
    const bool wanted = node.id == m_hovered || (!followed.isEmpty() && node.circuitIDs.contains(followed));
    if (node.kind != CircuitGraph::Kind::mac && m_rows[static_cast<size_t>(node.column)] < labelRow && !wanted)
        return;
    QFont font = painter.font();
    font.setPixelSize(12);
    font.setBold(false);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0);
    painter.setFont(font);
    const double room = node.column == 0 ? width() * 0.14 : width() * (node.column == 4 ? 0.2 : 0.19);
    const QString text = painter.fontMetrics().elidedText(node.label, Qt::ElideMiddle, static_cast<int>(room));
    const QRectF box(std::min(below.x() - room / 2, width() - room - 2), below.y() + 2, room, 17);
    if (wanted) { // it may stand on neighbours
        const double used = painter.fontMetrics().horizontalAdvance(text) + 10.0;
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_background);
        painter.drawRoundedRect(QRectF(box.center().x() - used / 2, box.y(), used, box.height()), 5, 5);
    }
    painter.setPen(m_ink);
    painter.drawText(box, Qt::AlignCenter, text);
}

void CircuitGraphView::paint(QPainter *painter)
{
    if (!m_model || m_graph.nodes.empty())
        return;
    painter->setRenderHint(QPainter::Antialiasing);
    drawGuides(*painter);
    drawEdges(*painter, false);
    drawEdges(*painter, true);
    // What is hovered or followed lies on top of the rest.
    const auto onTop = [this](const CircuitGraph::Node &node) {
        return node.id == m_hovered
            || (!m_model->followed().isEmpty() && node.circuitIDs.contains(m_model->followed()));
    };
    for (const bool top : {false, true})
        for (const CircuitGraph::Node &node : m_graph.nodes)
            if (onTop(node) == top)
                drawNode(*painter, node);
}

} // namespace veldmark
