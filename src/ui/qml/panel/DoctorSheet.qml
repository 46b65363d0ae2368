import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Veldmark

// What a connect needs on this computer, what prevents it, and how to fix that.
Sheet {
    id: sheet
    required property DoctorModel model
    signal reportWanted()

    title: qsTr("This computer")
    onAboutToShow: model.examine()

    WrappedText {
        Layout.fillWidth: true
        text: sheet.model.verdict
        color: Theme.quiet
        Accessible.role: Accessible.AlertMessage
    }
    ListView {
        id: list
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.preferredHeight: Math.min(contentHeight, 360)
        visible: count > 0
        clip: true
        spacing: 10
        boundsBehavior: Flickable.StopAtBounds
        T.ScrollBar.vertical: ScrollBar {}
        model: sheet.model
        delegate: RowLayout {
            id: row
            required property int index
            required property string text
            required property string level
            required property string symbol
            required property string command
            required property string button
            required property int tone
            x: Theme.mirrored ? 10 : 0 // beside the scroll bar
            width: ListView.view.width - 10
            spacing: 10
            Symbol {
                Layout.alignment: Qt.AlignTop
                name: row.symbol
                color: Theme.tone(row.tone)
            }
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 6
                WrappedText {
                    Layout.fillWidth: true
                    text: row.text
                    Accessible.name: row.level + ": " + row.text
                }
                CopyField {
                    Layout.fillWidth: true
                    visible: row.command !== ""
                    text: row.command
                    onCopied: text => sheet.model.copy(text)
                }
                PushButton {
                    visible: row.button !== ""
                    text: row.button
                    onClicked: sheet.model.press(row.index)
                }
            }
        }
    }
    buttons: [
        PushButton {
            text: qsTr("Done")
            primary: true
            onClicked: sheet.close()
        },
        PushButton {
            text: qsTr("Look Again")
            symbol: "arrow.triangle.2.circlepath"
            enabled: !sheet.model.busy
            onClicked: sheet.model.examine()
        },
        PushButton {
            text: qsTr("Show Report")
            symbol: "doc.text"
            help: qsTr("What others need to help you, without addresses, names and bridges")
            onClicked: {
                sheet.close()
                sheet.reportWanted()
            }
        }
    ]
}
