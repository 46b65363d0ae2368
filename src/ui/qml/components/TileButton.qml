import QtQuick
import QtQuick.Templates as T
import Veldmark

// A button with a symbol above its word, for a row of actions.
T.Button {
    id: button
    required property string symbol
    property string help

    implicitWidth: 104
    implicitHeight: Math.max(60, label.implicitHeight + 42)
    hoverEnabled: true
    Accessible.name: text
    Accessible.description: help

    contentItem: Item {
        opacity: button.enabled ? 1 : 0.5
        Symbol {
            id: picture
            anchors.horizontalCenter: parent.horizontalCenter
            y: 10
            name: button.symbol
            size: 18
            color: Theme.accent
        }
        Text {
            id: label
            anchors { left: parent.left; right: parent.right; top: picture.bottom; margins: 4; topMargin: 6 }
            text: button.text
            font.pixelSize: Theme.smallSize
            color: Theme.text
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }
    }
    background: Rectangle {
        radius: Theme.smallRadius
        color: button.down ? Theme.pressed : Theme.raised
        border.width: button.hovered && button.enabled ? 1 : 0
        border.color: Theme.edge
        FocusRing { shown: button.visualFocus }
    }
    Hint { control: button; text: button.help }
}
