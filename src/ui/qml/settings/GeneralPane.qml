import QtQuick
import QtQuick.Layouts
import Veldmark

Pane {
    id: pane
    required property SettingsModel model
    title: qsTr("General")
    subtitle: qsTr("Startup and password prompts")

    Card {
        Layout.fillWidth: true
        title: qsTr("Startup")
        contentSpacing: 14
        SwitchRow {
            symbol: "power"
            title: qsTr("Open at login")
            subtitle: qsTr("Veldmark starts when you log in")
            on: pane.model.openAtLogin
            enabled: pane.model.canOpenAtLogin
            onWanted: on => pane.model.openAtLogin = on
        }
        Divider {}
        SwitchRow {
            symbol: "bolt.fill"
            title: qsTr("Connect automatically")
            subtitle: qsTr("Connect as soon as Veldmark opens")
            on: pane.model.autoConnect
            onWanted: on => pane.model.autoConnect = on
        }
    }
    Card {
        Layout.fillWidth: true
        title: qsTr("Password prompts")
        contentSpacing: 12
        SettingRow {
            symbol: "key.fill"
            title: qsTr("Passwordless mode")
            subtitle: pane.model.passwordless ? qsTr("Connect and Disconnect never ask") : qsTr("Asks for your password each time")
            Symbol {
                visible: pane.model.passwordless
                name: "checkmark.circle.fill"
                size: 18
                color: Theme.good
            }
            PushButton {
                text: pane.model.passwordless ? qsTr("Turn Off") : qsTr("Set Up…")
                onClicked: pane.model.passwordless ? pane.model.removePasswordless() : pane.model.installPasswordless()
            }
        }
        ErrorLine { text: pane.model.passwordlessError }
        Note {
            text: qsTr("Setup asks for your admin password once. It installs a root-owned copy of Veldmark's helper and a rule in /etc/sudoers.d that lets your account run only that helper, so Connect and Disconnect stop asking. Turn it off any time.")
        }
    }
}
