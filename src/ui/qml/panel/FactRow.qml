import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Veldmark

// A fact with its value. Where it has help, the row takes the focus so that the help can be read.
T.Control {
    id: fact
    required property string title
    required property string symbol
    property color symbolColor: Theme.quiet
    property string help
    default property alias value: side.data

    implicitHeight: Math.max(26, row.implicitHeight)
    hoverEnabled: help !== ""
    focusPolicy: help !== "" ? Qt.TabFocus : Qt.NoFocus
    Accessible.role: Accessible.Grouping
    Accessible.name: title
    Accessible.description: help

    contentItem: RowLayout {
        id: row
        spacing: 10
        Symbol { name: fact.symbol; color: fact.symbolColor }
        Words { text: fact.title; color: Theme.quiet }
        Item { Layout.fillWidth: true }
        Side { id: side }
    }
    background: Item { FocusRing { shown: fact.visualFocus } }
    Hint { control: fact; text: fact.help }
}
