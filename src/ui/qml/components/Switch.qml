import QtQuick
import QtQuick.Templates as T
import Veldmark

// A switch that shows `on` and keeps no state of its own.
T.Switch {
    id: control
    required property bool on
    property string help
    signal wanted(bool on)

    implicitWidth: 40
    implicitHeight: 24
    hoverEnabled: true
    checked: on
    Accessible.name: text
    Accessible.description: help
    onToggled: {
        const want = checked
        checked = Qt.binding(() => control.on)
        wanted(want)
    }

    indicator: Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: control.checked ? Theme.accent : Theme.raised
        border.color: control.checked ? Theme.accent : Theme.edge
        opacity: control.enabled ? 1 : 0.5
        Rectangle {
            width: 16
            height: 16
            radius: 8
            y: 4
            x: control.checked !== control.mirrored ? parent.width - width - 4 : 4
            color: control.checked ? Theme.onTone : Theme.edge
            Behavior on x { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic } }
        }
    }
    FocusRing { shown: control.visualFocus; radius: 15 }
    Hint { control: control; text: control.help }
}
