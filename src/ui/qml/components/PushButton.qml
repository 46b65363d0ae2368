import QtQuick
import QtQuick.Templates as T
import Veldmark

// A button with a text and an optional symbol before it.
T.Button {
    id: button
    property string symbol
    property string help
    property bool primary: false // filled with the tone: the recommended next step
    property color tone: Theme.accent
    property color fill: Theme.raised // when it is not primary; a coloured card sets another
    property int symbolSize: 16

    property int maximumWidth: 300

    implicitHeight: Math.max(Theme.control, label.height + 12)
    implicitWidth: row.width + leftPadding + rightPadding
    leftPadding: 12
    rightPadding: 12
    hoverEnabled: true
    Accessible.name: text
    Accessible.description: help

    contentItem: Item {
        Row {
            id: row
            anchors.centerIn: parent
            spacing: 6
            opacity: button.enabled ? 1 : 0.5
            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                visible: button.symbol !== ""
                name: button.symbol
                size: button.symbolSize
                color: label.color
            }
            FittedText {
                id: label
                anchors.verticalCenter: parent.verticalCenter
                maximumWidth: button.maximumWidth - 24 - (button.symbol === "" ? 0 : button.symbolSize + 6)
                text: button.text
                font.pixelSize: Theme.bodySize
                font.weight: button.primary ? Font.DemiBold : Font.Normal
                color: button.primary ? Theme.onTone : Theme.text
                horizontalAlignment: Text.AlignHCenter
            }
        }
    }
    background: Rectangle {
        radius: Theme.smallRadius
        color: button.primary ? (button.down ? Qt.darker(button.tone, 1.15) : button.tone)
             : button.down ? Theme.pressed : button.fill
        opacity: button.enabled ? 1 : 0.6
        border.width: button.hovered && button.enabled ? 1 : 0
        border.color: Theme.edge
        FocusRing { shown: button.visualFocus }
    }
    Hint { control: button; text: button.help }
}
