import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Veldmark

// A whole row that opens a page or window.
T.Button {
    id: button
    required property string title
    property string subtitle
    property string symbol
    property string value
    property string mark: "chevron.right"

    text: title
    Layout.fillWidth: true
    implicitHeight: Math.max(32, row.implicitHeight + 8)
    hoverEnabled: true
    Accessible.name: text
    Accessible.description: subtitle + (subtitle !== "" && value !== "" ? ". " : "") + value

    contentItem: Item {
        implicitHeight: row.implicitHeight
        SettingRow {
            id: row
            anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
            title: button.title
            subtitle: button.subtitle
            symbol: button.symbol
            enabled: button.enabled
            WrappedText { text: button.value; color: Theme.quiet; visible: text !== "" }
            Symbol { name: button.mark; size: 14; transform: Scale { xScale: Theme.mirrored ? -1 : 1; origin.x: 7 } }
        }
    }
    background: Rectangle {
        anchors { fill: parent; leftMargin: -8; rightMargin: -8 }
        radius: Theme.smallRadius
        color: button.down ? Theme.pressed : button.hovered ? Theme.raised : "transparent"
        FocusRing { shown: button.visualFocus }
    }
}
