#pragma once

#include <QQuickItem>

namespace veldmark {

// The controls at the end of a row: its visible children in reading direction, vertically centred,
// in their own sizes. It follows every change of their sizes.
class TrailingItems : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double spacing MEMBER m_spacing CONSTANT)

public:
    explicit TrailingItems(QQuickItem *parent = nullptr) : QQuickItem(parent) { }

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void updatePolish() override;

private:
    double m_spacing = 8;
};

} // namespace veldmark
