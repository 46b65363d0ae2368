import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Veldmark

// The list of circuits, and the path of the followed one.
Rectangle {
    id: sidebar
    required property CircuitsModel model
    color: Theme.surface

    ColumnLayout {
        anchors.fill: parent
        spacing: 0
        WrappedText {
            Layout.margins: 16
            Layout.bottomMargin: 8
            text: qsTr("ALL CIRCUITS")
            font.pixelSize: Theme.smallSize
            font.weight: Font.DemiBold
            color: Theme.quiet
            Accessible.role: Accessible.Heading
        }
        ListView {
            id: list
            objectName: "list"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.minimumHeight: 72
            Layout.preferredHeight: 120
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            T.ScrollBar.vertical: ScrollBar {}
            model: sidebar.model
            // The followed row scrolls into view, also when it was chosen in the graph or when its path shortens the list. It does not when
            // only its row number changes, since that would undo the user's scrolling.
            readonly property string followed: sidebar.model.followed
            onFollowedChanged: settled.restart()
            onHeightChanged: settled.restart()
            Timer {
                id: settled // fires once the list has its new height
                interval: 0
                onTriggered: if (list.followed !== "") list.positionViewAtIndex(sidebar.model.followedRow, ListView.Contain)
            }
            delegate: T.ItemDelegate {
                id: row
                required property int index
                required property string circuitId
                required property string title
                required property string detail
                required property color tint
                required property bool isFollowed
                width: ListView.view.width
                implicitHeight: texts.implicitHeight + 12
                text: title
                hoverEnabled: true
                focusPolicy: Qt.StrongFocus
                Accessible.name: title
                Accessible.selectable: true
                Accessible.selected: isFollowed
                Accessible.description: detail
                onClicked: sidebar.model.follow(isFollowed ? "" : circuitId)
                // The list moves the focus to its current row whenever rows are inserted or removed.
                onActiveFocusChanged: if (activeFocus) list.currentIndex = index
                contentItem: Item {
                    Rectangle {
                        anchors.left: parent.left
                        anchors.leftMargin: 16
                        anchors.verticalCenter: parent.verticalCenter
                        width: 12
                        height: 12
                        radius: 6
                        color: row.tint
                        border.width: Theme.dark ? 0 : 1
                        border.color: "#6a6a78"
                    }
                    Column {
                        id: texts
                        anchors.left: parent.left
                        anchors.leftMargin: 38
                        width: parent.width - 50
                        anchors.verticalCenter: parent.verticalCenter
                        WrappedText {
                            width: parent.width
                            text: row.title
                            font.weight: row.isFollowed ? Font.DemiBold : Font.Normal
                        }
                        WrappedText {
                            width: parent.width
                            text: row.detail
                            font.pixelSize: Theme.smallSize
                            color: Theme.quiet
                        }
                    }
                }
                background: Rectangle {
                    color: row.isFollowed ? Theme.accentGround : row.hovered ? Theme.raised : "transparent"
                    FocusRing { shown: row.visualFocus; anchors.margins: 2 }
                }
            }
        }
        Divider {}
        WrappedText {
            Layout.margins: 16
            Layout.fillWidth: true
            visible: sidebar.model.followed === ""
            text: qsTr("No circuit selected")
            color: Theme.quiet
        }
        Flickable {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredHeight: Math.min(contentHeight, 330)
            Layout.minimumHeight: Math.min(contentHeight, 150)
            Layout.maximumHeight: contentHeight
            visible: sidebar.model.followed !== ""
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            contentHeight: path.implicitHeight + 32
            T.ScrollBar.vertical: ScrollBar {}
            ColumnLayout {
                id: path
                x: 16
                y: 16
                width: parent.width - 32
                spacing: 0
                Repeater {
                    model: sidebar.model.steps
                    PathStep {
                        required property var modelData
                        Layout.fillWidth: true
                        symbol: modelData.symbol
                        country: modelData.country
                        role: modelData.role
                        title: modelData.title
                        detail: modelData.detail
                        tint: modelData.tint
                        last: modelData.last
                        picture: modelData.picture
                    }
                }
                WrappedText {
                    Layout.fillWidth: true
                    Layout.topMargin: 4
                    visible: text !== ""
                    text: sidebar.model.purpose
                    font.pixelSize: Theme.smallSize
                    color: Theme.quiet
                }
                PushButton {
                    Layout.topMargin: 12
                    text: qsTr("New Circuit")
                    symbol: "arrow.triangle.2.circlepath"
                    help: qsTr("Close this circuit; its sites get a fresh path on their next request")
                    onClicked: sidebar.model.newCircuit()
                }
                WrappedText {
                    Layout.fillWidth: true
                    Layout.topMargin: 8
                    text: qsTr("Sites on this circuit get a fresh path. Other sites sharing it move too.")
                    font.pixelSize: Theme.smallSize
                    color: Theme.quiet
                }
            }
        }
    }
}
