import QtQuick
import Veldmark

// A verdict: a word in the colour of its meaning, on that colour's ground, with its symbol.
Rectangle {
    id: pill
    required property string text
    required property int tone
    property string symbol

    implicitWidth: row.implicitWidth + 16
    implicitHeight: Math.max(24, label.implicitHeight + 8)
    radius: 12
    color: tone === PanelModel.Neutral ? Theme.raised : Theme.toneGround(tone)
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Row {
        id: row
        anchors.centerIn: parent
        spacing: 5
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: pill.symbol !== ""
            name: pill.symbol
            size: 13
            color: label.color
        }
        FittedText {
            id: label
            anchors.verticalCenter: parent.verticalCenter
            maximumWidth: 180
            text: pill.text
            font.pixelSize: Theme.smallSize
            font.weight: Font.DemiBold
            wrapMode: Text.WrapAnywhere
            color: Theme.tone(pill.tone)
        }
    }
}
