import QtQuick

// The controls at the end of a row, centred. A positioner: it follows its children's sizes at once.
Row {
    id: side
    spacing: 8
    onChildrenChanged: {
        for (const child of children)
            child.anchors.verticalCenter = side.verticalCenter
    }
}
