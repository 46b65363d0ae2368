import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import QtQuick.Window
import Veldmark

// The installed applications, where the user chooses those that may bypass Tor in strict mode.
Window {
    id: window
    required property ApplicationChoices model
    signal fileWanted() // for an application that is not listed
    signal quitWanted()

    title: qsTr("App exceptions")
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true
    width: 460
    height: 560
    minimumWidth: 360
    minimumHeight: 420
    color: Theme.ground
    onVisibleChanged: if (visible) {
        search.clear()
        model.search = "" // from the previous window
        model.refresh()
        search.forceActiveFocus()
    }

    ColumnLayout {
        anchors { fill: parent; margins: 16 }
        spacing: 12
        WrappedText {
            Layout.fillWidth: true
            text: qsTr("Choose apps that may skip Tor in strict mode")
            font.pixelSize: Theme.headSize
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        SearchField {
            id: search
            Layout.fillWidth: true
            placeholderText: qsTr("Search")
            onTextChanged: window.model.search = text
            Keys.onDownPressed: list.forceActiveFocus(Qt.TabFocusReason)
        }
        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true
            ListView {
                id: list
                anchors.fill: parent
                clip: true
                spacing: 2
                activeFocusOnTab: count > 0
                keyNavigationEnabled: true
                boundsBehavior: Flickable.StopAtBounds
                T.ScrollBar.vertical: ScrollBar {}
                model: window.model
                Accessible.role: Accessible.List
                Accessible.name: qsTr("Installed applications")
                delegate: ChooserRow {
                    width: ListView.view.width
                    focused: list.activeFocus && ListView.isCurrentItem
                    onWanted: window.model.toggle(index)
                }
                // A reset list has no current row and would lose the keyboard focus.
                onActiveFocusChanged: if (activeFocus && currentIndex < 0 && count > 0) currentIndex = 0
                Keys.onSpacePressed: window.model.toggle(currentIndex)
                Keys.onReturnPressed: window.model.toggle(currentIndex)
            }
            WrappedText {
                anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
                visible: list.count === 0
                horizontalAlignment: Text.AlignHCenter
                text: window.model.emptyText
                color: Theme.quiet
            }
        }
        Flow {
            Layout.fillWidth: true
            layoutDirection: Qt.RightToLeft
            spacing: 8
            PushButton {
                text: qsTr("Done")
                primary: true
                onClicked: window.close()
            }
            PushButton {
                text: qsTr("Other…")
                help: qsTr("Choose the .desktop file of an application that is not listed")
                onClicked: window.fileWanted()
            }
        }
    }
    WindowKeys { onCloseWanted: window.close(); onQuitWanted: window.quitWanted() }
}
