import QtQuick
import QtQuick.Layouts
import Veldmark

// A command with a button that copies it.
Rectangle {
    id: field
    required property string text
    signal copied(string text)

    implicitHeight: row.implicitHeight + 8
    // Commands are read from the left in every language.
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true
    radius: Theme.smallRadius
    color: Theme.ground
    border.color: Theme.line

    RowLayout {
        id: row
        anchors { fill: parent; leftMargin: 12; rightMargin: 4; topMargin: 4; bottomMargin: 4 }
        TextEdit {
            Layout.fillWidth: true
            text: field.text
            horizontalAlignment: TextEdit.AlignLeft
            readOnly: true
            selectByMouse: true
            wrapMode: Text.WrapAtWordBoundaryOrAnywhere
            font.pixelSize: 13
            font.family: Theme.monospaced
            color: Theme.text
            selectionColor: Theme.accent
            selectedTextColor: Theme.onTone
            activeFocusOnTab: false
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        IconButton {
            id: button
            symbol: done.running ? "checkmark" : "doc.on.doc"
            color: done.running ? Theme.good : Theme.quiet
            text: done.running ? qsTr("Copied") : qsTr("Copy")
            onClicked: {
                field.copied(field.text)
                done.restart()
            }
            Timer { id: done; interval: 1500 }
        }
    }
}
