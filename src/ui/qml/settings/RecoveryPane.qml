import QtQuick
import QtQuick.Layouts
import Veldmark

Pane {
    id: pane
    required property SettingsModel model
    signal reportWanted()
    title: qsTr("Recovery")
    subtitle: qsTr("Get your normal connection back")
    Component.onCompleted: model.lookAgain()

    Card {
        Layout.fillWidth: true
        contentSpacing: 12
        SettingRow {
            symbol: "arrow.uturn.backward"
            title: qsTr("Restore network settings")
            subtitle: pane.model.changesActive ? qsTr("Veldmark's changes are active") : qsTr("Nothing to restore")
            subtitleColor: pane.model.changesActive ? Theme.warning : Theme.quiet
            PushButton {
                text: qsTr("Restore")
                enabled: pane.model.canRestore
                onClicked: pane.model.restore()
            }
        }
        Note {
            text: qsTr("Use this if your internet stops working after a crash. It puts your DNS, proxy and firewall settings back the way they were and stops Tor.")
        }
    }
    Card {
        Layout.fillWidth: true
        contentSpacing: 12
        SettingRow {
            symbol: "lifepreserver.fill"
            title: qsTr("If the app won't open")
            subtitle: qsTr("Run this in Terminal to do the same thing without Veldmark.")
        }
        CopyField {
            Layout.fillWidth: true
            text: pane.model.restoreCommand
            onCopied: text => pane.model.copy(text)
        }
    }
    Card {
        Layout.fillWidth: true
        contentSpacing: 12
        SettingRow {
            symbol: "stethoscope"
            title: qsTr("Report for others")
            subtitle: qsTr("What they need to help you, without addresses, names and bridges. You read it first, and nothing sends it.")
            PushButton {
                text: qsTr("Show Report")
                onClicked: pane.reportWanted()
            }
        }
    }
}
