import QtQuick
import QtQuick.Layouts
import Veldmark

Pane {
    id: pane
    required property SettingsModel model
    title: qsTr("Bridges")
    subtitle: qsTr("Programs that disguise your Tor connection")
    Component.onCompleted: pane.model.lookForTransports()

    Card {
        Layout.fillWidth: true
        contentSpacing: 14
        ProgramRow { title: "lyrebird"; found: pane.model.lyrebird; onComputer: pane.model.onComputer }
        Divider {}
        ProgramRow { title: "snowflake-client"; found: pane.model.snowflake; onComputer: pane.model.onComputer }
        Divider {}
        ProgramRow { title: "webtunnel-client"; found: pane.model.webtunnel; onComputer: pane.model.onComputer }
    }
    Card {
        Layout.fillWidth: true
        contentSpacing: 14
        ChoiceRow {
            symbol: "arrow.triangle.branch"
            title: qsTr("When Tor is blocked")
            subtitle: pane.model.torLocked ? qsTr("Disconnect to change")
                    : qsTr("Tries the available bridges in turn, without another password")
            enabled: !pane.model.torLocked
            names: pane.model.climbNames
            current: pane.model.climbIndex
            onChosen: index => pane.model.climbIndex = index
        }
    }
    Card {
        Layout.fillWidth: true
        contentSpacing: 14
        SettingRow {
            symbol: "point.3.connected.trianglepath.dotted"
            title: qsTr("Built-in bridges")
            subtitle: qsTr("Bridge addresses shipped with Tor")
        }
        Note { text: pane.model.bridgeSource }
        Divider {}
        SettingRow {
            symbol: "arrow.down.circle.fill"
            title: qsTr("Tor Expert Bundle")
            subtitle: pane.model.bundleStatus
            DownloadButton {
                text: pane.model.bundleLoaded ? qsTr("Update") : qsTr("Download")
                symbol: "" // the row has it
                enabled: pane.model.canDownload
                onClicked: pane.model.download()
            }
        }
        Note { text: pane.model.downloadText }
        Note { text: pane.model.bundleTrust }
    }
}
