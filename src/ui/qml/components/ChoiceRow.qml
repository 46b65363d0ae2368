import QtQuick
import QtQuick.Layouts
import Veldmark

// A title with a choice beside it, and below both the explanation and a note about the choice.
Column {
    id: row
    required property string title
    required property string symbol
    required property string subtitle
    property string note
    property string unlisted // shown while the choice is none of the names
    required property var names // list of strings
    required property int current
    property color noteColor: Theme.quiet
    readonly property bool open: choice.popup.visible
    signal chosen(int index)

    Layout.fillWidth: true
    spacing: 2

    SettingRow {
        width: row.width
        title: row.title
        symbol: row.symbol
        Choice {
            id: choice
            name: row.title
            unlisted: row.unlisted
            model: row.names
            currentIndex: row.current
            onActivated: index => row.chosen(index)
        }
    }
    WrappedText {
        anchors.left: parent.left
        anchors.leftMargin: 30
        width: row.width - 30
        text: row.subtitle
        font.pixelSize: Theme.smallSize
        color: Theme.quiet
        opacity: row.enabled ? 1 : 0.62
    }
    WrappedText {
        anchors.left: parent.left
        anchors.leftMargin: 30
        width: row.width - 30
        visible: text !== ""
        text: row.note
        font.pixelSize: Theme.smallSize
        color: row.noteColor
        opacity: row.enabled ? 1 : 0.62
    }
}
