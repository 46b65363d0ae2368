import QtQuick
import QtQuick.Window
import QtQuick.Layouts
import Veldmark

Window {
    id: window
    required property LogModel model
    signal quitWanted()

    title: qsTr("Tor Log")
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true
    width: 900
    height: 540
    minimumWidth: 640
    minimumHeight: 420
    color: Theme.ground
    Component.onCompleted: model.open()
    onClosing: model.close()

    ColumnLayout {
        anchors.fill: parent
        spacing: 0
        RowLayout {
            Layout.fillWidth: true
            Layout.margins: 16
            Layout.bottomMargin: 10
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 2
                WrappedText {
                    text: qsTr("Tor Log")
                    font.pixelSize: Theme.titleSize
                    font.weight: Font.DemiBold
                    Accessible.role: Accessible.Heading
                }
                WrappedText {
                    Layout.fillWidth: true
                    text: window.model.subtitle
                    font.pixelSize: Theme.smallSize
                    color: Theme.quiet
                }
            }
            SearchField {
                id: filter
                placeholderText: qsTr("Filter")
                onTextChanged: window.model.search = text
            }
        }
        RowLayout {
            Layout.fillWidth: true
            Layout.leftMargin: 16
            Layout.rightMargin: 16
            Layout.bottomMargin: 12
            spacing: 8
            ToggleButton {
                text: window.model.problemsLabel
                symbol: "exclamationmark.triangle.fill"
                on: window.model.problemsOnly
                onWanted: on => window.model.problemsOnly = on
            }
            ToggleButton {
                text: qsTr("Follow")
                help: qsTr("Keep the newest lines in view")
                symbol: "arrow.down.circle.fill"
                on: lines.follow
                onWanted: on => lines.follow = on
            }
            Item { Layout.fillWidth: true }
            PushButton {
                text: qsTr("Copy")
                symbol: "doc.on.doc"
                help: qsTr("Copy the lines shown")
                enabled: window.model.hasRows
                onClicked: window.model.copy()
            }
            PushButton {
                text: qsTr("Show")
                symbol: "doc.text.magnifyingglass"
                help: window.model.showHelp
                onClicked: window.model.reveal()
            }
        }
        ErrorLine {
            Layout.leftMargin: 16
            Layout.rightMargin: 16
            Layout.bottomMargin: 12
            text: window.model.revealProblem
        }
        Rectangle {
            Layout.fillWidth: true
            Layout.fillHeight: true
            color: Theme.surface
            Divider { anchors { left: parent.left; right: parent.right } }
            LogLines {
                id: lines
                objectName: "lines"
                anchors { fill: parent; topMargin: 1 }
                visible: window.model.hasRows
                log: window.model
            }
            FocusRing {
                anchors.margins: 1
                shown: lines.activeFocus && lines.head < 0 // no line shows the focus then
            }
            EmptyState {
                anchors.centerIn: parent
                width: parent.width - 48
                visible: !window.model.hasRows
                symbol: window.model.emptySymbol
                title: window.model.emptyTitle
                text: window.model.emptyText
            }
        }
    }
    Shortcut { sequences: [StandardKey.Find]; onActivated: filter.forceActiveFocus() }
    WindowKeys { onCloseWanted: window.close(); onQuitWanted: window.quitWanted() }
}
