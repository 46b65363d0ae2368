import QtQuick
import QtQuick.Templates as T
import Veldmark

// The log's lines. Dragging within a line, or a double click, selects its text; dragging over several, or Shift with the arrow keys,
// selects whole lines. Ctrl-C copies the selection. Following ends when the reader scrolls up and starts again at the end.
ListView {
    id: list
    required property LogModel log
    property bool follow: true
    property int anchor: -1
    property int head: -1
    readonly property int firstSelected: Math.min(anchor, head)
    readonly property int lastSelected: Math.max(anchor, head)
    property int textRow: -1 // the row with a partial text selection, or -1
    readonly property string selectedText: textRow >= 0 ? (itemAtIndex(textRow) as LogRow)?.selectedText ?? "" : ""

    clip: true
    focus: true
    // Tor's log is English in every language.
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true
    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    interactive: false
    reuseItems: true
    model: log
    T.ScrollBar.vertical: ScrollBar { id: bar; onPressedChanged: if (pressed) list.follow = false }
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Tor Log")

    // Rows wrap their text, so their heights depend on the width and are known only after their creation.
    onCountChanged: {
        if (follow)
            positionViewAtEnd()
        stay()
    }
    onFollowChanged: stay()
    onHeightChanged: stay()
    onWidthChanged: stay()
    onContentHeightChanged: stay()
    onVisibleChanged: stay()

    function stay() {
        if (follow)
            settled.restart()
    }
    Timer { id: settled; interval: 0; onTriggered: list.positionViewAtEnd() }

    // The selection stays when older lines are removed at the beginning; another list starts without one.
    Connections {
        target: list.log
        function onRowsRemoved(parent, first, last) {
            const gone = last - first + 1
            list.head = Math.max(list.head - gone, -1)
            list.anchor = list.head < 0 ? -1 : Math.max(list.anchor - gone, 0)
            list.textRow = Math.max(list.textRow - gone, -1)
        }
        function onModelReset() {
            list.head = -1
            list.anchor = -1
            list.textRow = -1
        }
    }

    function selectText(row: int, from: int, to: int) {
        if (row !== textRow)
            dropText()
        textRow = row;
        (itemAtIndex(row) as LogRow)?.selectCharacters(from, to)
    }
    function dropText() {
        if (textRow >= 0)
            (itemAtIndex(textRow) as LogRow)?.deselect()
        textRow = -1
    }

    function scrollBy(distance: double) {
        contentY = Math.max(originY, Math.min(originY + contentHeight - height, contentY + distance))
        follow = atYEnd || contentY >= originY + contentHeight - height - 2
    }
    function move(row: int, extend: bool) {
        dropText()
        head = Math.max(0, Math.min(count - 1, row))
        if (!extend)
            anchor = head
        follow = false
        positionViewAtIndex(head, ListView.Contain)
    }
    Keys.onPressed: event => {
        const extend = event.modifiers & Qt.ShiftModifier
        event.accepted = true
        if (event.matches(StandardKey.Copy) && selectedText !== "")
            log.copyText(selectedText)
        else if (event.matches(StandardKey.Copy) && anchor >= 0)
            log.copy(firstSelected, lastSelected)
        else if (event.matches(StandardKey.SelectAll)) {
            dropText()
            anchor = 0
            head = count - 1
        } else if (event.key === Qt.Key_Up) move(head < 0 ? count - 1 : head - 1, extend)
        else if (event.key === Qt.Key_Down) move(head < 0 ? 0 : head + 1, extend)
        else if (event.key === Qt.Key_PageUp) scrollBy(-height * 0.9)
        else if (event.key === Qt.Key_PageDown) scrollBy(height * 0.9)
        else if (event.key === Qt.Key_Home) move(0, extend)
        else if (event.key === Qt.Key_End) { move(count - 1, extend); follow = true }
        else event.accepted = false
    }

    delegate: LogRow {
        selected: index >= list.firstSelected && index <= list.lastSelected && list.anchor >= 0 && list.selectedText === ""
        focused: list.activeFocus && index === list.head
    }
    MouseArea {
        id: area
        property double dragged: 0 // how far above or below the list the pointer drags a selection
        anchors { fill: parent; rightMargin: bar.visible ? bar.width : 0 }
        cursorShape: Qt.IBeamCursor
        preventStealing: true
        function rowAt(y: double): int { return list.indexAt(10, list.contentY + Math.max(0, Math.min(list.height - 1, y))) }
        // The position inside the row.
        function inRow(row: int, mouse: point): point {
            const item = list.itemAtIndex(row)
            return item ? mapToItem(item, mouse.x, mouse.y) : Qt.point(0, 0)
        }
        function characterAt(row: int, mouse: point): int {
            const at = inRow(row, mouse)
            return (list.itemAtIndex(row) as LogRow)?.characterAt(at.x, at.y) ?? 0
        }
        property int pressedAt: 0 // the character's index
        onPressed: mouse => {
            list.forceActiveFocus()
            list.dropText()
            const row = rowAt(mouse.y)
            pressedAt = characterAt(row, Qt.point(mouse.x, mouse.y))
            list.head = row
            if (!(mouse.modifiers & Qt.ShiftModifier) || list.anchor < 0)
                list.anchor = row
        }
        onPositionChanged: mouse => {
            const row = rowAt(mouse.y)
            if (row >= 0)
                list.head = row
            if (list.head !== list.anchor)
                list.dropText()
            else if (row >= 0)
                list.selectText(row, pressedAt, characterAt(row, Qt.point(mouse.x, mouse.y)))
            dragged = mouse.y < 0 ? mouse.y : Math.max(0, mouse.y - height)
            if (list.head !== list.anchor)
                list.follow = false
        }
        onDoubleClicked: mouse => {
            const row = rowAt(mouse.y)
            const at = inRow(row, Qt.point(mouse.x, mouse.y))
            list.textRow = row;
            (list.itemAtIndex(row) as LogRow)?.selectWordAt(at.x, at.y)
        }
        onReleased: dragged = 0
        onCanceled: dragged = 0
        Timer {
            interval: 40
            repeat: true
            running: area.dragged !== 0
            onTriggered: {
                list.scrollBy(area.dragged)
                list.follow = false
                const row = area.rowAt(area.dragged < 0 ? 0 : area.height)
                if (row >= 0)
                    list.head = row
            }
        }
        onWheel: wheel => list.scrollBy(-(wheel.pixelDelta.y !== 0 ? wheel.pixelDelta.y : wheel.angleDelta.y * 0.5))
    }
}
