import QtQuick
import QtQuick.Templates as T
import Veldmark

// A fact with its value. A row with help takes the focus, so that the help can be read.
T.Control {
    id: fact
    required property string title
    required property string symbol
    property color symbolColor: Theme.quiet
    property string help
    default property alias value: side.data

    implicitHeight: Math.max(26, side.height)
    hoverEnabled: help !== ""
    focusPolicy: help !== "" ? Qt.TabFocus : Qt.NoFocus
    Accessible.role: Accessible.Grouping
    Accessible.name: title
    Accessible.description: help

    contentItem: Item {
        Symbol {
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            name: fact.symbol
            color: fact.symbolColor
        }
        WrappedText {
            anchors.left: parent.left
            anchors.leftMargin: 26
            width: Math.max(40, parent.width - side.width - 34)
            anchors.verticalCenter: parent.verticalCenter
            text: fact.title
            color: Theme.quiet
        }
        TrailingItems {
            id: side
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        }
    }
    background: Item { FocusRing { shown: fact.visualFocus } }
    Hint { control: fact; text: fact.help }
}
