import QtQuick
import QtQuick.Window
import QtQuick.Layouts
import QtQuick.Templates as T
import Veldmark

// The report as it would be given to others, for its user to read first.
Window {
    id: window
    required property ReportModel model
    signal saveWanted()
    signal quitWanted()

    title: qsTr("Report")
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true
    width: 760
    height: 600
    minimumWidth: 520
    minimumHeight: 420
    color: Theme.ground
    Component.onCompleted: model.open()

    ColumnLayout {
        anchors.fill: parent
        spacing: 0
        ColumnLayout {
            Layout.fillWidth: true
            Layout.margins: 16
            Layout.bottomMargin: 12
            spacing: 4
            WrappedText {
                text: qsTr("Report")
                font.pixelSize: Theme.titleSize
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }
            WrappedText {
                Layout.fillWidth: true
                text: qsTr("For those who help you. Addresses, names, bridges, keys and paths in your home are replaced. Look through it before you give it away: Veldmark sends it to nobody.")
                font.pixelSize: Theme.smallSize
                color: Theme.quiet
            }
        }
        RowLayout {
            Layout.fillWidth: true
            Layout.leftMargin: 16
            Layout.rightMargin: 16
            Layout.bottomMargin: 12
            spacing: 8
            PushButton {
                text: qsTr("Save…")
                symbol: "arrow.down.circle.fill"
                help: qsTr("Save the report in a file that only you can read")
                enabled: window.model.text !== ""
                primary: true
                onClicked: window.saveWanted()
            }
            PushButton {
                text: qsTr("Copy")
                symbol: "doc.on.doc"
                help: qsTr("Copy the whole report")
                enabled: window.model.text !== ""
                onClicked: window.model.copy()
            }
            WrappedText {
                Layout.fillWidth: true
                text: window.model.note
                font.pixelSize: Theme.smallSize
                color: Theme.quiet
                Accessible.role: Accessible.AlertMessage
                Accessible.ignored: text === ""
            }
        }
        ErrorLine {
            Layout.leftMargin: 16
            Layout.rightMargin: 16
            Layout.bottomMargin: 12
            text: window.model.problem
        }
        Rectangle {
            Layout.fillWidth: true
            Layout.fillHeight: true
            color: Theme.surface
            Divider { anchors { left: parent.left; right: parent.right } }
            Flickable {
                id: area
                anchors { fill: parent; topMargin: 1 }
                visible: window.model.text !== ""
                contentWidth: width
                contentHeight: words.height + 24
                boundsBehavior: Flickable.StopAtBounds
                clip: true
                // The report is English in every language.
                LayoutMirroring.enabled: false
                LayoutMirroring.childrenInherit: true
                T.ScrollBar.vertical: ScrollBar {}

                TextEdit {
                    id: words
                    objectName: "words"
                    x: 16
                    y: 12
                    width: area.width - 40
                    text: window.model.text
                    textFormat: TextEdit.PlainText
                    horizontalAlignment: TextEdit.AlignLeft
                    readOnly: true
                    selectByMouse: true
                    selectByKeyboard: true
                    persistentSelection: true
                    activeFocusOnTab: true
                    wrapMode: TextEdit.WrapAtWordBoundaryOrAnywhere
                    font.family: Theme.monospaced
                    font.pixelSize: Theme.smallSize
                    color: Theme.text
                    selectionColor: Theme.accent
                    selectedTextColor: Theme.onTone
                    Accessible.role: Accessible.EditableText
                    Accessible.readOnly: true
                    Accessible.name: qsTr("Report")
                    // The keys move a cursor that a text that can't be changed doesn't show.
                    onCursorRectangleChanged: {
                        if (!activeFocus)
                            return
                        const top = y + cursorRectangle.y
                        if (top < area.contentY)
                            area.contentY = Math.max(0, top - 12)
                        else if (top + cursorRectangle.height > area.contentY + area.height)
                            area.contentY = Math.min(area.contentHeight - area.height, top + cursorRectangle.height + 12 - area.height)
                    }
                    Keys.onPressed: event => {
                        const page = event.key === Qt.Key_PageUp ? -0.9 : event.key === Qt.Key_PageDown ? 0.9 : 0
                        if (page === 0)
                            return
                        area.contentY = Math.max(0, Math.min(area.contentHeight - area.height, area.contentY + page * area.height))
                        event.accepted = true
                    }
                }
            }
            FocusRing {
                anchors.margins: 1
                shown: words.activeFocus
            }
            EmptyState {
                anchors.centerIn: parent
                width: parent.width - 48
                visible: window.model.text === ""
                symbol: "stethoscope"
                title: qsTr("Looking at this computer…")
                text: ""
            }
        }
    }
    WindowKeys { onCloseWanted: window.close(); onQuitWanted: window.quitWanted() }
}
