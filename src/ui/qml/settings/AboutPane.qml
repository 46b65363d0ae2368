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
        WrappedText {
            Layout.fillWidth: true
            text: qsTr("Sends this computer's traffic through Tor, all of it in strict mode and that of apps that use the system proxy in proxy mode, and shows whether it really does.")
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
        Note { text: pane.model.credits }
        Note { text: qsTr("Veldmark is made with Qt, QCoro and tl::expected.") }
    }
}
