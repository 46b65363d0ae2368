import QtQuick
import QtQuick.Layouts
import Veldmark

Pane {
    id: pane
    required property SettingsModel model
    title: qsTr("Veldmark")
    subtitle: pane.model.version

    Card {
        Layout.fillWidth: true
        contentSpacing: 12
        Words {
            Layout.fillWidth: true
            text: qsTr("Sends the whole computer's traffic through Tor, and shows honestly whether it does.")
        }
        LinkRow {
            visible: pane.model.homePage !== ""
            symbol: "globe"
            title: qsTr("Veldmark")
            subtitle: qsTr("Homepage, downloads and updates")
            mark: "arrow.up.right"
            Accessible.role: Accessible.Link
            onClicked: Qt.openUrlExternally(pane.model.homePage)
        }
        LinkRow {
            symbol: "shield.lefthalf.filled"
            title: qsTr("The Tor Project")
            subtitle: qsTr("The network and pluggable transports Veldmark builds on")
            mark: "arrow.up.right"
            Accessible.role: Accessible.Link
            onClicked: Qt.openUrlExternally("https://www.torproject.org/")
        }
    }
    Card {
        Layout.fillWidth: true
        title: qsTr("Credits")
        Note {
            text: qsTr("Veldmark is free software and independent of the Tor Project. It contains no Tor: it runs the tor that is installed here, and where bridges are used lyrebird, snowflake-client or webtunnel-client. Its interface is made with Qt.")
        }
    }
}
