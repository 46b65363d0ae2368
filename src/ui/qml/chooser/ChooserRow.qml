import QtQuick
import QtQuick.Templates as T
import Veldmark

// An application with its picture; a click decides whether it may bypass Tor.
T.CheckDelegate {
    id: row
    required property int index
    required property string name
    required property string picture // a URL; empty without a picture
    required property bool chosen
    property bool focused: false
    signal wanted()

    height: Math.max(44, label.implicitHeight + 16)
    text: name
    checkable: false // `checked` follows the stored choice
    checked: chosen
    hoverEnabled: true
    focusPolicy: Qt.NoFocus // the list has the focus
    Accessible.role: Accessible.CheckBox
    Accessible.name: name
    Accessible.checkable: true
    Accessible.checked: chosen
    onClicked: row.wanted()

    contentItem: Item {
        Image {
            anchors.left: parent.left
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            width: 28
            height: 28
            visible: row.picture !== ""
            source: row.picture
            sourceSize { width: 28; height: 28 }
        }
        Symbol {
            anchors.left: parent.left
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            visible: row.picture === ""
            name: "square.grid.2x2"
            size: 28
            color: Theme.quiet
        }
        WrappedText {
            id: label
            anchors.left: parent.left
            anchors.leftMargin: 48
            width: parent.width - 88
            anchors.verticalCenter: parent.verticalCenter
            text: row.name
            Accessible.ignored: true
        }
        Symbol {
            anchors { right: parent.right; rightMargin: 12; verticalCenter: parent.verticalCenter }
            visible: row.chosen
            name: "checkmark"
            size: 16
            color: Theme.accent
        }
    }
    background: Rectangle {
        radius: Theme.smallRadius
        color: row.down ? Theme.pressed : row.hovered ? Theme.raised : row.chosen ? Theme.accentGround : "transparent"
        FocusRing { shown: row.focused }
    }
}
