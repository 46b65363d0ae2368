import QtQuick
import QtQuick.Layouts
import Veldmark

// A symbol, a title with an optional line below it, and whatever control is put into it.
RowLayout {
    id: row
    required property string title
    property string subtitle
    property string symbol
    property color subtitleColor: Theme.quiet
    property color symbolColor: Theme.quiet
    default property alias control: side.data

    spacing: 12
    Layout.fillWidth: true

    Symbol {
        visible: row.symbol !== ""
        name: row.symbol
        size: 18
        color: row.symbolColor
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 2
        opacity: row.enabled ? 1 : 0.62
        Words {
            Layout.fillWidth: true
            text: row.title
        }
        Words {
            Layout.fillWidth: true
            visible: row.subtitle !== ""
            text: row.subtitle
            font.pixelSize: Theme.smallSize
            color: row.subtitleColor
        }
    }
    Side { id: side }
}
