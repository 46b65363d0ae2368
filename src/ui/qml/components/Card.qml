import QtQuick
import QtQuick.Layouts
import Veldmark

// A group of related items, under an optional heading.
ColumnLayout {
    id: card
    property string title
    property color fill: Theme.surface
    property int padding: 16
    default property alias content: column.data
    property alias contentSpacing: column.spacing

    spacing: 8

    WrappedText {
        Layout.leftMargin: 4
        visible: card.title !== ""
        text: card.title
        font.pixelSize: Theme.smallSize
        font.weight: Font.DemiBold
        color: Theme.quiet
        Accessible.role: Accessible.Heading
    }
    Rectangle {
        Layout.fillWidth: true
        implicitHeight: column.implicitHeight + 2 * card.padding
        radius: Theme.radius
        color: card.fill
        border.color: Theme.line
        ColumnLayout {
            id: column
            anchors { fill: parent; margins: card.padding }
            spacing: 8
        }
    }
}
