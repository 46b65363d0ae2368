import QtQuick
import QtQuick.Layouts
import Veldmark

Pane {
    id: pane
    required property SettingsModel model
    title: qsTr("Terminal")
    subtitle: qsTr("Route command-line tools through Tor")
    Component.onCompleted: model.lookAgain()

    Card {
        Layout.fillWidth: true
        contentSpacing: 14
        SwitchRow {
            symbol: "terminal.fill"
            title: qsTr("Terminal mode")
            subtitle: pane.model.terminalTools
            on: pane.model.terminalMode
            onWanted: on => pane.model.terminalMode = on
        }
        Divider {}
        SettingRow {
            symbol: "doc.text"
            title: qsTr("Shell integration")
            subtitle: pane.model.terminalStatus
            PushButton {
                text: qsTr("Remove")
                visible: pane.model.terminalInstalled
                onClicked: pane.model.removeTerminalIntegration()
            }
        }
        ErrorLine { text: pane.model.terminalError }
        Note { text: pane.model.terminalExplanation }
    }
}
