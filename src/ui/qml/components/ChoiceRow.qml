import QtQuick
import QtQuick.Layouts
import Veldmark

// A title with a choice beside it, and a note below both.
Column {
    id: row
    required property string title
    required property string symbol
    required property string note
    required property var names // list of strings
    required property int current
    property color noteColor: Theme.quiet
    signal chosen(int index)

    Layout.fillWidth: true
    spacing: 2

    SettingRow {
        width: row.width
        title: row.title
        symbol: row.symbol
        Choice {
            name: row.title
            model: row.names
            currentIndex: row.current
            onActivated: index => row.chosen(index)
        }
    }
    Words {
        x: 30
        width: row.width - 30
        text: row.note
        font.pixelSize: Theme.smallSize
        color: row.noteColor
        opacity: row.enabled ? 1 : 0.62
    }
}
