#include "ui/CircuitGraphView.h"

#include "ui/ColorScheme.h"
#include "ui/StrandPainter.h"

#include <QCursor>
#include <QGuiApplication>
#include <QHash>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace veldmark {

namespace {

constexpr double computerRadius = 18;
constexpr double nodeRadius = 13;
constexpr double denseRadius = 7;
constexpr double labelRow = 34; // closer rows have no room for a label below the node
constexpr double clickRadius = 20;
constexpr double wireDistance = 4; // between handles; strands are at most 3/4 of it apart
constexpr double ribbonWidth = 28;

// The opacity of what does not stand out, beside a followed circuit and beside hovered ones.
constexpr double fadedStrand = 0.14;
constexpr double fadedNode = 0.3;
constexpr double dimmedStrand = 0.3;
constexpr double dimmedNode = 0.55;

void put(QPainter &painter, const QImage &picture, QPointF center)
{
    painter.drawImage(QPoint(static_cast<int>(std::lround(center.x() - picture.width() / 2.0)),
                             static_cast<int>(std::lround(center.y() - picture.height() / 2.0))),
                      picture);
}

} // namespace

CircuitGraphView::CircuitGraphView(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setOpaquePainting(true);
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

void CircuitGraphView::setEmphasis(double emphasis)
{
    if (m_emphasis == emphasis)
        return;
    m_emphasis = emphasis;
    Q_EMIT emphasisChanged();
    update();
}

void CircuitGraphView::rebuild()
{
    if (!m_model)
        return;
    if (m_drawn != m_model->circuits() || m_graph.nodes.empty()) {
        m_drawn = m_model->circuits();
        m_graph = CircuitGraph::build(m_drawn, m_model->computer());
        for (CircuitGraph::Node &node : m_graph.nodes)
            if (node.kind == CircuitGraph::Kind::more)
                node.label = tr("%1 more").arg(node.label.section(u' ', 0, 0));
        m_circuits.clear();
        QHash<QString, int> legs;
        for (size_t i = 0; i < m_drawn.size(); ++i) {
            m_circuits.push_back({m_drawn[i].id, CircuitsModel::paletteColor(i), 0, false});
            // The legs of one conflux set are strands that separate and join again at the exit.
            if (!m_drawn[i].confluxID.isEmpty())
                m_circuits.back().bulge = legs[m_drawn[i].confluxID]++ % 2 == 0 ? -7.0 : 7.0;
        }
        m_pictures.trim();
        layOut();
    }
    light();
    Q_EMIT hoveredChanged(); // the hovered node may have moved or disappeared
    update();
}

void CircuitGraphView::layOut()
{
    const QHash<QString, QPointF> positions = GraphLayout(m_graph, size()).positions;
    QHash<QString, size_t> circuitAt;
    for (size_t i = 0; i < m_circuits.size(); ++i)
        circuitAt.insert(m_circuits[i].id, i);
    std::array<double, 5> last{};
    last.fill(-std::numeric_limits<double>::infinity());
    m_rows.fill(std::numeric_limits<double>::infinity());
    m_places.clear();
    m_places.reserve(m_graph.nodes.size());
    for (const CircuitGraph::Node &node : m_graph.nodes) {
        Place place{positions.value(node.id), {}, false};
        for (const QString &id : node.circuitIDs)
            place.circuits.push_back(circuitAt.value(id));
        const auto column = static_cast<size_t>(node.column);
        m_rows[column] = std::min(m_rows[column], place.at.y() - last[column]);
        last[column] = place.at.y();
        m_places.push_back(std::move(place));
    }
    // Strands between the same two nodes run side by side, like the wires of a ribbon. The pair
    // counts all strands of a ribbon and those already placed.
    QHash<QString, std::pair<int, int>> ribbons;
    const auto ribbon = [](const CircuitGraph::Edge &edge) { return edge.from + u'|' + edge.to; };
    for (const CircuitGraph::Edge &edge : m_graph.edges)
        ++ribbons[ribbon(edge)].first;
    m_links.clear();
    m_links.reserve(m_graph.edges.size());
    for (const CircuitGraph::Edge &edge : m_graph.edges) {
        auto &[count, placed] = ribbons[ribbon(edge)];
        const double step = count > 1 ? std::min(wireDistance, ribbonWidth / (count - 1)) : 0;
        const size_t circuit = circuitAt.value(edge.circuitID);
        m_links.push_back({positions.value(edge.from), positions.value(edge.to), circuit,
                           m_circuits[circuit].bulge + step * (placed++ - (count - 1) / 2.0)});
    }
}

void CircuitGraphView::light()
{
    const QString followed = m_model ? m_model->followed() : QString();
    const CircuitGraph::Node *hovered = followed.isEmpty() ? hoveredNode() : nullptr;
    if (hovered && hovered->circuitIDs.isEmpty())
        hovered = nullptr;
    const bool standingOut = !followed.isEmpty() || hovered;
    // When nothing stands out any more, the last circuits fade from where they are.
    if (standingOut) {
        m_followedOut = !followed.isEmpty();
        for (Circuit &circuit : m_circuits)
            circuit.lit = m_followedOut ? circuit.id == followed
                                        : hovered->circuitIDs.contains(circuit.id);
    }
    for (size_t i = 0; i < m_places.size(); ++i)
        m_places[i].lit = m_graph.nodes[i].kind == CircuitGraph::Kind::mac
            || std::any_of(m_places[i].circuits.begin(), m_places[i].circuits.end(),
                           [this](size_t circuit) { return m_circuits[circuit].lit; });
    if (m_standingOut != standingOut) {
        m_standingOut = standingOut;
        Q_EMIT standingOutChanged();
    }
}

void CircuitGraphView::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickPaintedItem::geometryChange(now, before);
    layOut();
    light();
    Q_EMIT hoveredChanged(); // the hovered node has moved
    update();
}

const CircuitGraph::Node *CircuitGraphView::nodeAt(QPointF point) const
{
    const CircuitGraph::Node *nearest = nullptr;
    double best = clickRadius;
    for (size_t i = 0; i < m_places.size(); ++i) {
        const double distance = QLineF(point, m_places[i].at).length();
        if (distance <= best) {
            best = distance;
            nearest = &m_graph.nodes[i];
        }
    }
    return nearest;
}

const CircuitGraph::Node *CircuitGraphView::hoveredNode() const
{
    const auto found = std::find_if(
        m_graph.nodes.begin(), m_graph.nodes.end(),
        [this](const CircuitGraph::Node &node) { return node.id == m_hovered; });
    return m_hovered.isEmpty() || found == m_graph.nodes.end() ? nullptr : &*found;
}

void CircuitGraphView::setHovered(const QString &id)
{
    if (m_hovered == id)
        return;
    m_hovered = id;
    setCursor(id.isEmpty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
    light();
    Q_EMIT hoveredChanged();
    update();
}

// The pointer may enter the view on a node and stay there.
void CircuitGraphView::hoverEnterEvent(QHoverEvent *event)
{
    hoverMoveEvent(event);
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
    const CircuitGraph::Node *node = hoveredNode();
    if (!node)
        return {};
    if (node->kind == CircuitGraph::Kind::mac)
        return tr("%1: your real IP only ever reaches the entry relay").arg(node->label);
    QString help = node->label + u'\n';
    if (node->relay)
        help += CircuitsModel::placeOf(*node->relay) + u'\n';
    if (const QString asking = askedBy(*node); !asking.isEmpty())
        help += asking + u'\n';
    const auto count = static_cast<int>(node->circuitIDs.size());
    return help
        + (count == 1 ? tr("Used by 1 circuit") : tr("Used by %n circuits", nullptr, count));
}

QString CircuitGraphView::askedBy(const CircuitGraph::Node &node) const
{
    if (node.kind != CircuitGraph::Kind::site || !m_model)
        return {};
    QStringList applications;
    for (const CircuitInfo &circuit : m_drawn) {
        if (node.circuitIDs.contains(circuit.id))
            applications << circuit.askers.value(node.label);
    }
    applications.removeDuplicates();
    return m_model->askedBy(applications);
}

QPointF CircuitGraphView::hoveredAt() const
{
    const CircuitGraph::Node *node = hoveredNode();
    return node ? m_places[static_cast<size_t>(node - m_graph.nodes.data())].at : QPointF();
}

double CircuitGraphView::opacity(bool lit, double faded) const
{
    return lit ? 1 : 1 - m_emphasis * (1 - faded);
}

QColor CircuitGraphView::ringColor(const Place &place) const
{
    if (place.circuits.empty())
        return m_ink;
    if (m_emphasis > 0 && place.lit)
        for (const size_t circuit : place.circuits)
            if (m_circuits[circuit].lit)
                return m_circuits[circuit].color;
    return place.circuits.size() == 1 ? m_circuits[place.circuits.front()].color : m_faintInk;
}

void CircuitGraphView::drawGuides(QPainter &painter) const
{
    const std::array titles{QString(), tr("ENTRY"), tr("MIDDLE"), tr("EXIT"), tr("SITES")};
    QFont font = painter.font();
    font.setPixelSize(11);
    if (!QGuiApplication::isRightToLeft()) // letter spacing would break joined letters
        font.setLetterSpacing(QFont::AbsoluteSpacing, 1);
    painter.setFont(font);
    for (int column = 0; column < GraphLayout::columns; ++column) {
        const double x = std::round(GraphLayout::columnAt(column, width()));
        painter.fillRect(QRectF(x, 34, 1, height() - 40), m_guide);
        painter.setPen(m_faintInk);
        painter.drawText(QRectF(x - 70, 10, 140, 18), Qt::AlignCenter,
                         titles[static_cast<size_t>(column)]);
    }
}

void CircuitGraphView::drawStrands(QPainter &painter, double scale, bool lit)
{
    std::optional<StrandPainter> strands(std::in_place, m_canvas, scale);
    for (const Link &link : m_links) {
        const Circuit &circuit = m_circuits[link.circuit];
        if ((circuit.lit && m_emphasis > 0) != lit)
            continue;
        Strand strand{link.from, link.to, link.bulge, 1.6, circuit.color, 0, m_outline};
        const double visible = opacity(lit, m_followedOut ? fadedStrand : dimmedStrand);
        strand.color.setAlphaF(static_cast<float>(visible));
        strand.edgeColor.setAlphaF(m_outline.alphaF() * static_cast<float>(visible));
        if (lit)
            strand.width += 1.4 * m_emphasis;
        if (m_outline.alpha() > 0) // on a light ground the pale colours need an edge
            strand.edge = 0.7;
        if (link.to.x() - link.from.x() > 1) {
            strands->draw(strand);
            continue;
        }
        // A bow connects two relays of one column.
        QPainterPath bow(link.from);
        bow.quadTo(link.from + QPointF(40, (link.to.y() - link.from.y()) / 2), link.to);
        painter.setOpacity(visible);
        painter.strokePath(bow, QPen(circuit.color, strand.width));
        painter.setOpacity(1);
    }
}

void CircuitGraphView::drawNode(QPainter &painter, double scale, size_t index)
{
    using Kind = CircuitGraph::Kind;
    const CircuitGraph::Node &node = m_graph.nodes[index];
    const Place &place = m_places[index];
    const bool dense = m_rows[static_cast<size_t>(node.column)] < 2 * nodeRadius + 2;
    const double radius = node.kind == Kind::mac ? computerRadius
        : dense                                  ? denseRadius
                                                 : nodeRadius;
    const QPointF center = place.at * scale;
    const bool hovered = node.id == m_hovered;

    // Hides the ends of the strands.
    put(painter, m_pictures.disc(radius, 2, m_background, m_background), center);
    painter.setOpacity(opacity(place.lit || hovered, m_followedOut ? fadedNode : dimmedNode));
    const QColor ring = ringColor(place);
    // On a light ground the pale ring gets a rim.
    if (m_outline.alpha() > 0 && ring != m_faintInk && ring != m_ink)
        put(painter, m_pictures.disc(radius, hovered ? 4.4 : 3.4, m_outline, m_background), center);
    put(painter, m_pictures.disc(radius, hovered ? 3 : 2, ring, m_background), center);
    if (node.kind == Kind::mac) {
        put(painter, m_pictures.symbol(QStringLiteral("laptopcomputer"), 20, m_ink), center);
    } else if (!dense && node.kind == Kind::site) {
        put(painter, m_pictures.symbol(QStringLiteral("globe"), 14, m_ink), center);
    } else if (!dense && node.kind == Kind::more) {
        put(painter, m_pictures.symbol(QStringLiteral("ellipsis"), 14, m_ink), center);
    } else if (!dense && node.relay) {
        const QString country = node.relay->country.value_or(QStringLiteral("?"));
        const QString flag = m_drawFlags ? ColorScheme::flag(country) : QString();
        put(painter,
            m_pictures.country(flag.isEmpty() ? country.toUpper() : flag, !flag.isEmpty(), m_ink),
            center);
    }
    drawLabel(painter, scale, index, place.at + QPointF(0, radius));
    painter.setOpacity(1);
}

void CircuitGraphView::drawLabel(QPainter &painter, double scale, size_t index, QPointF below)
{
    const CircuitGraph::Node &node = m_graph.nodes[index];
    const bool isComputer = node.kind == CircuitGraph::Kind::mac;
    const bool wanted = node.id == m_hovered
        || (m_standingOut && m_followedOut && m_places[index].lit && !isComputer);
    if (!isComputer && m_rows[static_cast<size_t>(node.column)] < labelRow && !wanted)
        return;
    const double room = width() * (isComputer ? 0.24 : node.column == 4 ? 0.2 : 0.19);
    const QImage &picture = m_pictures.label(node.label, room, m_ink, m_background);
    const double half = picture.width() / scale / 2;
    const QPointF center(std::clamp(below.x(), half + 2, std::max(half + 2, width() - half - 2)),
                         below.y() + 11);
    put(painter, picture, center * scale);
}

void CircuitGraphView::paint(QPainter *painter)
{
    if (!m_model) { // the item is opaque, so it must paint its background
        painter->fillRect(boundingRect(), m_background);
        return;
    }
    const double scale = painter->deviceTransform().m11();
    const QSize pixels = (size() * scale).toSize();
    if (m_canvas.size() != pixels)
        m_canvas = QImage(pixels, QImage::Format_RGB32);
    m_canvas.fill(m_background);
    if (m_canvas.isNull())
        return;
    m_pictures.prepare(scale, painter->font());
    {
        QPainter inner(&m_canvas);
        inner.setRenderHint(QPainter::Antialiasing);
        inner.scale(scale, scale);
        drawGuides(inner);
        for (const bool lit : {false, true})
            drawStrands(inner, scale, lit);
        inner.resetTransform();
        // What stands out is drawn above the rest, and the hovered node above all.
        for (const bool lit : {false, true})
            for (size_t i = 0; i < m_places.size(); ++i)
                if ((m_places[i].lit && m_emphasis > 0) == lit && m_graph.nodes[i].id != m_hovered)
                    drawNode(inner, scale, i);
        if (const CircuitGraph::Node *node = hoveredNode())
            drawNode(inner, scale, static_cast<size_t>(node - m_graph.nodes.data()));
    }
    const QPointF origin = painter->deviceTransform().map(QPointF());
    painter->save();
    painter->resetTransform();
    painter->drawImage(origin.toPoint(), m_canvas);
    painter->restore();
}

} // namespace veldmark
