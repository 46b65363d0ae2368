import QtQuick
import QtQuick.Templates as T
import Veldmark

// A button that stays pressed while `on`.
T.Button {
    id: button
    required property bool on
    required property string symbol
    property string help
    signal wanted(bool on)

    implicitHeight: Theme.control
    implicitWidth: row.implicitWidth + 24
    hoverEnabled: true
    checkable: true
    checked: on
    Accessible.name: text
    Accessible.description: help
    onToggled: {
        const want = checked
        checked = Qt.binding(() => button.on)
        wanted(want)
    }
    contentItem: Item {
        Row {
            id: row
            anchors.centerIn: parent
            spacing: 6
            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: button.checked ? "checkmark" : button.symbol
                size: 14
                color: label.color
            }
            Text {
                id: label
                text: button.text
                font.pixelSize: Theme.bodySize
                color: button.checked ? Theme.accent : Theme.text
            }
        }
    }
    background: Rectangle {
        radius: Theme.smallRadius
        color: button.checked ? Theme.accentGround : button.down ? Theme.pressed : Theme.raised
        border.width: button.checked || button.hovered ? 1 : 0
        border.color: button.checked ? Theme.accent : Theme.edge
        FocusRing { shown: button.visualFocus }
    }
    Hint { control: button; text: button.help }
}
