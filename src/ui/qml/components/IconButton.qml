import QtQuick
import QtQuick.Templates as T
import Veldmark

// A button with only a symbol; its text is its name and its help.
T.Button {
    id: button
    required property string symbol
    property string help: text
    property color color: Theme.quiet

    implicitWidth: Theme.control
    implicitHeight: Theme.control
    hoverEnabled: true
    Accessible.name: text
    Accessible.description: help

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: button.symbol
            color: button.color
            opacity: button.enabled ? 1 : 0.5
        }
    }
    background: Rectangle {
        radius: Theme.smallRadius
        color: button.down ? Theme.pressed : button.hovered ? Theme.raised : "transparent"
        FocusRing { shown: button.visualFocus }
    }
    Hint { control: button; text: button.help }
}
