import QtQuick
import Veldmark

// A short fact on a rounded ground, with an optional symbol.
Rectangle {
    id: chip
    required property string text
    property string symbol
    property color color_: Theme.quiet
    property int maximumWidth: 300

    implicitWidth: row.implicitWidth + 20
    implicitHeight: Math.max(26, label.implicitHeight + 10)
    radius: 13
    color: Theme.surface
    border.color: Theme.line
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Row {
        id: row
        anchors.centerIn: parent
        spacing: 6
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: chip.symbol !== ""
            name: chip.symbol
            size: 13
            color: chip.color_
        }
        FittedText {
            id: label
            anchors.verticalCenter: parent.verticalCenter
            maximumWidth: chip.maximumWidth - 40
            text: chip.text
            font.pixelSize: Theme.smallSize
            color: chip.color_
        }
    }
}
