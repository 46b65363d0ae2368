import QtQuick
import QtQuick.Layouts
import Veldmark

Pane {
    id: pane
    required property SettingsModel model
    title: qsTr("Terminal")
    subtitle: qsTr("Route command-line tools through Tor")

    Card {
        Layout.fillWidth: true
        contentSpacing: 14
        SwitchRow {
            symbol: "terminal.fill"
            title: qsTr("Terminal mode")
            subtitle: qsTr("curl, git, brew, pip, ssh and more use Tor")
            on: pane.model.terminalMode
            onWanted: on => pane.model.terminalMode = on
        }
        Divider {}
        SettingRow {
            symbol: "doc.text"
            title: qsTr("Shell integration")
            subtitle: pane.model.terminalInstalled ? qsTr("Installed in your shell and SSH config") : qsTr("Not installed")
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
