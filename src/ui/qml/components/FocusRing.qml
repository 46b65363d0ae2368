import QtQuick
import Veldmark

// Shows the keyboard focus.
Rectangle {
    property bool shown: false

    anchors.fill: parent
    anchors.margins: -3
    radius: Theme.smallRadius + 3
    color: "transparent"
    border.width: 2
    border.color: Theme.accent
    visible: shown
}
