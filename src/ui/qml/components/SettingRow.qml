import QtQuick
import QtQuick.Layouts
import Veldmark

// A symbol, a title with an optional line below it, and a control.
Item {
    id: row
    required property string title
    property string subtitle
    property string symbol
    property color subtitleColor: Theme.quiet
    property color symbolColor: Theme.quiet
    default property alias control: side.data

    Layout.fillWidth: true
    implicitHeight: Math.max(texts.height, side.height, 24)
    implicitWidth: 200

    Symbol {
        id: picture
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        visible: row.symbol !== ""
        name: row.symbol
        size: 18
        color: row.symbolColor
        opacity: row.enabled ? 1 : 0.62
    }
    Column {
        id: texts
        readonly property int start: row.symbol === "" ? 0 : 30
        anchors.left: parent.left
        anchors.leftMargin: start
        width: Math.max(40, row.width - start - (side.width > 0 ? side.width + 12 : 0))
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2
        opacity: row.enabled ? 1 : 0.62
        WrappedText {
            width: parent.width
            text: row.title
        }
        WrappedText {
            width: parent.width
            visible: row.subtitle !== ""
            text: row.subtitle
            font.pixelSize: Theme.smallSize
            color: row.subtitleColor
        }
    }
    TrailingItems {
        id: side
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
    }
}
