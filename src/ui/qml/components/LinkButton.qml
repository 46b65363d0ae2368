import QtQuick
import QtQuick.Templates as T
import Veldmark

// A flat button in the accent colour.
T.Button {
    id: button
    property string symbol
    property string help
    property color tone: Theme.accent

    implicitHeight: 28
    implicitWidth: row.implicitWidth + 12
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
                size: 14
                color: button.tone
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: button.text
                font.pixelSize: Theme.bodySize
                font.underline: button.hovered
                color: button.tone
            }
        }
    }
    background: Item { FocusRing { shown: button.visualFocus } }
    Hint { control: button; text: button.help }
}
