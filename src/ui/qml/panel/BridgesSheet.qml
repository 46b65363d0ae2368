import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Veldmark

Sheet {
    id: sheet
    required property OptionsModel model

    title: qsTr("Custom bridges")
    property bool isDropEmpty: false // the last dropped files had no bridge
    onAboutToShow: {
        isDropEmpty = false
        editor.text = model.customBridges
        editor.forceActiveFocus()
    }

    WrappedText {
        Layout.fillWidth: true
        text: qsTr("One bridge per line. Ask the Tor Project for bridges on its bridges page, by e-mail or through its Telegram bot, or use those of someone you trust. obfs4, webtunnel, Snowflake, meek and plain bridges are supported.")
        color: Theme.quiet
    }
    Rectangle {
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.preferredHeight: 180
        Layout.minimumHeight: 80
        radius: Theme.smallRadius
        color: Theme.ground
        border.color: editor.activeFocus ? Theme.accent : Theme.edge
        border.width: editor.activeFocus ? 2 : 1
        Flickable {
            anchors { fill: parent; margins: 2 }
            clip: true
            contentWidth: width
            contentHeight: editor.implicitHeight
            boundsBehavior: Flickable.StopAtBounds
            T.ScrollBar.vertical: ScrollBar {}
            T.TextArea.flickable: T.TextArea {
                id: editor
                objectName: "bridgeEditor"
                LayoutMirroring.enabled: false // bridge lines are read from the left in every language
                horizontalAlignment: TextEdit.AlignLeft
                padding: 10
                wrapMode: Text.WrapAnywhere
                font.pixelSize: 13
                font.family: Theme.monospaced
                color: Theme.text
                selectionColor: Theme.accent
                selectedTextColor: Theme.onTone
                selectByMouse: true
                Accessible.name: qsTr("Custom bridges")
                onTextChanged: sheet.isDropEmpty = false
                KeyNavigation.priority: KeyNavigation.BeforeItem
                KeyNavigation.tab: only.visible ? only : save
            }
        }
        DropArea {
            objectName: "bridgeDrop"
            anchors.fill: parent
            onDropped: drop => {
                const lines = drop.hasUrls
                    ? drop.urls.map(file => sheet.model.bridgesInFile(file)).filter(found => found !== "").join("\n")
                    : drop.text
                if (lines !== "")
                    editor.text += (editor.text === "" || editor.text.endsWith("\n") ? "" : "\n") + lines
                sheet.isDropEmpty = lines === ""
            }
        }
    }
    WrappedText {
        Layout.fillWidth: true
        visible: sheet.isDropEmpty
        text: qsTr("There is no bridge in this file.")
        color: Theme.warning
    }
    WrappedText {
        Layout.fillWidth: true
        visible: text !== ""
        text: sheet.model.bridgeCount(editor.text)
        font.pixelSize: Theme.smallSize
        color: Theme.quiet
    }
    RowLayout {
        visible: warning.text !== ""
        Symbol { name: "exclamationmark.triangle.fill"; color: Theme.warning }
        WrappedText {
            id: warning
            Layout.fillWidth: true
            text: sheet.model.bridgeWarning(editor.text)
            color: Theme.warning
        }
    }
    PushButton {
        id: only
        readonly property string lines: sheet.model.onlyBridges(editor.text)
        visible: lines !== ""
        text: qsTr("Keep Only the Bridges")
        help: qsTr("Removes everything from the text but the bridges that were recognized")
        onClicked: {
            editor.text = lines
            editor.forceActiveFocus()
        }
    }
    buttons: [
        PushButton {
            id: save
            text: qsTr("Save")
            primary: true
            onClicked: {
                sheet.model.saveCustomBridges(editor.text)
                sheet.close()
            }
        },
        PushButton {
            text: qsTr("Cancel")
            onClicked: sheet.close()
        }
    ]
}
