import QtQuick
import Veldmark

Rectangle {
    id: row
    required property int index
    required property string time
    required property string message
    required property int level
    required property bool selected
    required property bool focused
    readonly property bool problem: level === LogModel.Error || level === LogModel.Warning

    width: ListView.view ? ListView.view.width : 0
    height: words.height + 6
    color: selected ? Theme.accentGround
         : level === LogModel.Error ? Theme.dangerGround
         : level === LogModel.Warning ? Theme.warningGround : "transparent"
    Accessible.role: Accessible.ListItem
    Accessible.name: time + " " + message

    Rectangle {
        width: 3
        height: parent.height
        visible: row.problem
        color: row.level === LogModel.Error ? Theme.danger : Theme.warning
    }
    Text {
        id: stamp
        x: 16
        y: 3
        width: 168
        text: row.time
        font.family: Theme.monospaced
        font.pixelSize: Theme.smallSize
        color: Theme.quiet
    }
    Text {
        id: words
        x: 188
        y: 3
        width: row.width - 206
        text: row.message
        textFormat: Text.PlainText
        font.family: Theme.monospaced
        font.pixelSize: Theme.smallSize
        wrapMode: Text.WrapAtWordBoundaryOrAnywhere
        color: row.level === LogModel.Error ? Theme.danger : row.level === LogModel.Warning ? Theme.warning : Theme.text
    }
    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.width: row.focused ? 1 : 0
        border.color: Theme.accent
    }
}
