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
    readonly property string selectedText: words.selectedText
    readonly property bool problem: level === LogModel.Error || level === LogModel.Warning

    // The character of the message at a position in the row.
    function characterAt(x: double, y: double): int { return words.positionAt(x - words.x, y - words.y) }
    function selectCharacters(from: int, to: int) { words.select(from, to) }
    function selectWordAt(x: double, y: double) {
        words.cursorPosition = characterAt(x, y)
        words.selectWord()
    }
    function deselect() { words.deselect() }
    ListView.onPooled: deselect()

    width: ListView.view ? ListView.view.width : 0
    height: words.height + 6
    color: selected ? Theme.accentGround
         : level === LogModel.Error ? Theme.dangerGround
         : level === LogModel.Warning ? Theme.warningGround : "transparent"
    Accessible.role: Accessible.ListItem
    // The level comes first, as its colour does for the eye.
    readonly property string levelName: level === LogModel.Error ? qsTr("Error") : level === LogModel.Warning ? qsTr("Warning")
                                      : level === LogModel.Notice ? qsTr("Notice") : qsTr("Information")
    Accessible.name: (problem ? levelName + ": " : "") + time + " " + message
    Accessible.description: problem ? "" : levelName

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
    TextEdit {
        id: words
        x: 188
        y: 3
        width: row.width - 206
        text: row.message
        horizontalAlignment: TextEdit.AlignLeft
        textFormat: TextEdit.PlainText
        readOnly: true
        activeFocusOnPress: false
        activeFocusOnTab: false
        persistentSelection: true
        selectionColor: Theme.accent
        selectedTextColor: Theme.onTone
        Accessible.ignored: true
        font.family: Theme.monospaced
        font.pixelSize: Theme.smallSize
        wrapMode: TextEdit.WrapAtWordBoundaryOrAnywhere
        color: row.level === LogModel.Error ? Theme.danger : row.level === LogModel.Warning ? Theme.warning : Theme.text
    }
    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.width: row.focused ? 1 : 0
        border.color: Theme.accent
    }
}
