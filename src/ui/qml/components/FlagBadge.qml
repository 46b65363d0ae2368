import QtQuick
import Veldmark

// A country: its flag if the fonts have one, else its two letters.
Item {
    id: badge
    required property string country // two letters; any other text is shown as unknown
    readonly property string flag: country !== "" && ColorScheme.flagsDrawn ? ColorScheme.flag(country) : ""

    implicitWidth: 26
    implicitHeight: 18
    Accessible.role: Accessible.Graphic
    Accessible.name: country.toUpperCase()

    Text {
        anchors.centerIn: parent
        visible: badge.flag !== ""
        text: badge.flag
        font.pixelSize: 17
    }
    Rectangle {
        anchors.fill: parent
        visible: badge.flag === ""
        radius: 4
        color: Theme.raised
        border.color: Theme.edge
        Text {
            anchors.centerIn: parent
            text: badge.country === "" ? "?" : badge.country.toUpperCase()
            font.pixelSize: 11
            font.weight: Font.DemiBold
            color: Theme.text
        }
    }
}
