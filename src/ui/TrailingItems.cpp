#include "ui/TrailingItems.h"

#include <QGuiApplication>

#include <algorithm>

namespace veldmark {

void TrailingItems::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemChildAddedChange) {
        for (const auto changed :
             {&QQuickItem::widthChanged, &QQuickItem::heightChanged, &QQuickItem::visibleChanged})
            QObject::connect(data.item, changed, this, [this] { polish(); });
        polish();
    } else if (change == ItemChildRemovedChange) {
        data.item->disconnect(this);
        polish();
    }
    QQuickItem::itemChange(change, data);
}

void TrailingItems::updatePolish()
{
    double tallest = 0;
    for (const QQuickItem *child : childItems())
        if (child->isVisible())
            tallest = std::max(tallest, child->height());
    QList<QQuickItem *> children = childItems();
    if (QGuiApplication::isRightToLeft())
        std::reverse(children.begin(), children.end());
    double x = 0;
    for (QQuickItem *child : children) {
        if (!child->isVisible() || child->width() <= 0)
            continue;
        child->setPosition({x, (tallest - child->height()) / 2});
        x += child->width() + m_spacing;
    }
    setImplicitSize(std::max(0.0, x - m_spacing), tallest);
}

} // namespace veldmark
