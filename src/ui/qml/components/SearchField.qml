import QtQuick
import QtQuick.Templates as T
import Veldmark

T.TextField {
    id: field
    implicitWidth: 200
    implicitHeight: Theme.control
    leftPadding: Theme.mirrored ? 10 : 34
    rightPadding: Theme.mirrored ? 34 : 10
    font.pixelSize: Theme.bodySize
    color: Theme.text
    selectionColor: Theme.accent
    selectedTextColor: Theme.onTone
    verticalAlignment: Text.AlignVCenter
    selectByMouse: true
    Accessible.name: placeholderText
    // Escape first empties the field; the next one closes the window.
    Keys.onShortcutOverride: event => event.accepted = event.key === Qt.Key_Escape && text !== ""
    Keys.onEscapePressed: event => {
        event.accepted = text !== ""
        clear()
    }

    background: Rectangle {
        radius: Theme.smallRadius
        color: Theme.raised
        Symbol {
            anchors.left: parent.left
            anchors.leftMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            name: "magnifyingglass"
            size: 14
        }
        Text {
            anchors.left: parent.left
            anchors.leftMargin: 34
            anchors.verticalCenter: parent.verticalCenter
            visible: field.text === "" && field.preeditText === ""
            text: field.placeholderText
            font: field.font
            color: Theme.quiet
        }
        FocusRing { shown: field.activeFocus }
    }
}
