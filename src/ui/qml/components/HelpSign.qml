import QtQuick
import QtQuick.Templates as T
import Veldmark

// A symbol that shows its help when the pointer or the keyboard focus reaches it. It cannot be pressed.
T.Control {
    id: sign
    objectName: "help sign"
    required property string symbol
    required property string text
    property color color: Theme.quiet

    implicitWidth: Theme.control
    implicitHeight: Theme.control
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: sign.symbol
            color: sign.color
        }
    }
    background: Item { FocusRing { shown: sign.visualFocus } }
    Hint { control: sign; text: sign.text }
}
