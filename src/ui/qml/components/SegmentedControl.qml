import QtQuick
import QtQuick.Templates as T
import Veldmark

// A choice of one of a few visible options.
Rectangle {
    id: control
    required property var names // list of strings
    required property int current
    property string name
    signal chosen(int index)

    implicitWidth: row.implicitWidth + 4
    implicitHeight: Theme.control
    radius: Theme.smallRadius
    color: Theme.raised
    Accessible.role: Accessible.Grouping
    Accessible.name: name

    Row {
        id: row
        anchors.centerIn: parent
        Repeater {
            model: control.names
            T.RadioButton {
                id: segment
                required property int index
                required property string modelData
                text: modelData
                checked: index === control.current
                autoExclusive: false // only `current` decides; a click need not change it
                Accessible.name: text
                implicitWidth: label.implicitWidth + 24
                implicitHeight: Theme.control - 4
                onClicked: {
                    checked = Qt.binding(() => index === control.current)
                    control.chosen(index)
                }
                contentItem: Text {
                    id: label
                    text: segment.text
                    font.pixelSize: Theme.bodySize
                    color: segment.checked ? Theme.text : Theme.quiet
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                }
                background: Rectangle {
                    radius: Theme.smallRadius - 2
                    color: segment.checked ? Theme.surface : "transparent"
                    border.width: segment.checked ? 1 : 0
                    border.color: Theme.edge
                    FocusRing { shown: segment.visualFocus }
                }
            }
        }
    }
}
