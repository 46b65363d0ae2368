import QtQuick
import QtQuick.Templates as T
import Veldmark

T.ScrollBar {
    id: bar
    implicitWidth: 10
    implicitHeight: 10
    padding: 2
    visible: size < 1
    Accessible.ignored: true
    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: Theme.edge
        opacity: bar.pressed || bar.hovered ? 1 : 0.55
    }
}
