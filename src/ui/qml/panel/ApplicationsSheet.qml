import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Veldmark

Sheet {
    id: sheet
    required property OptionsModel model
    signal chooserWanted()

    title: qsTr("App exceptions")
    onAboutToShow: model.forgetLaunchError()

    WrappedText {
        Layout.fillWidth: true
        textFormat: Text.StyledText
        text: sheet.model.applicationsExplanation
        color: Theme.quiet
    }
    WrappedText {
        Layout.fillWidth: true
        visible: list.count === 0
        text: qsTr("No apps yet. Add Zoom, Discord, a game…")
    }
    WrappedText {
        Layout.fillWidth: true
        visible: !sheet.model.canLaunchBypassed
        text: qsTr("Connect in strict mode to open apps without Tor")
        color: Theme.warning
    }
    ErrorLine { text: sheet.model.launchError }
    ListView {
        id: list
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.preferredHeight: Math.min(contentHeight, 280)
        visible: count > 0
        clip: true
        spacing: 6
        boundsBehavior: Flickable.StopAtBounds
        T.ScrollBar.vertical: ScrollBar {}
        model: sheet.model.applications
        delegate: RowLayout {
            id: row
            required property string modelData
            width: ListView.view.width
            WrappedText {
                Layout.fillWidth: true
                text: sheet.model.applicationName(row.modelData)
            }
            PushButton {
                text: qsTr("Open without Tor")
                enabled: sheet.model.canLaunchBypassed
                onClicked: sheet.model.launchBypassed(row.modelData)
            }
            IconButton {
                symbol: "xmark"
                text: qsTr("Remove")
                onClicked: sheet.model.removeApplication(row.modelData)
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
            text: qsTr("Add…")
            symbol: "plus"
            onClicked: sheet.chooserWanted()
        }
    ]
}
