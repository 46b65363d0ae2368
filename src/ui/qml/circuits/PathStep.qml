import QtQuick
import QtQuick.Window
import QtQuick.Layouts
import Veldmark

// A step of the followed circuit's path, joined to the next by a line in the circuit's colour.
RowLayout {
    id: step
    required property string symbol  // of the computer and of sites
    property string picture: ""      // of the application that asked for the sites, a URL
    required property string country // of a relay
    required property string role
    required property string title
    required property string detail
    required property color tint
    required property bool last

    spacing: 12
    Accessible.role: Accessible.ListItem
    Accessible.name: (role !== "" ? role + ", " : "") + title + ", " + detail

    Item {
        Layout.fillHeight: true
        implicitWidth: 28
        Rectangle {
            visible: !step.last
            anchors.left: parent.left
            anchors.leftMargin: 14 - width / 2
            y: 26
            width: 4
            height: parent.height - 26
            radius: 2
            color: step.tint
            border.width: Theme.dark ? 0 : 1
            border.color: "#6a6a78"
        }
        Symbol {
            visible: step.symbol !== "" && step.picture === ""
            anchors.left: parent.left
            anchors.leftMargin: 5
            y: 3
            name: step.symbol
            size: 18
            color: Theme.text
        }
        Image {
            visible: step.picture !== ""
            anchors.left: parent.left
            anchors.leftMargin: 4
            y: 2
            width: 20
            height: 20
            sourceSize.width: Math.round(20 * Screen.devicePixelRatio)
            sourceSize.height: Math.round(20 * Screen.devicePixelRatio)
            source: step.picture
            Accessible.ignored: true
        }
        FlagBadge {
            visible: step.symbol === ""
            anchors.left: parent.left
            anchors.leftMargin: 1
            y: 3
            country: step.country
        }
    }
    ColumnLayout {
        Layout.fillWidth: true
        Layout.bottomMargin: 8
        spacing: 0
        WrappedText {
            Layout.fillWidth: true
            visible: step.role !== ""
            text: step.role
            font.pixelSize: Theme.smallSize
            color: Theme.quiet
        }
        WrappedText {
            Layout.fillWidth: true
            text: step.title
            font.weight: Font.DemiBold
            wrapMode: Text.WrapAnywhere
        }
        WrappedText {
            Layout.fillWidth: true
            text: step.detail
            font.pixelSize: Theme.smallSize
            color: Theme.quiet
            wrapMode: Text.WrapAtWordBoundaryOrAnywhere
        }
    }
}
