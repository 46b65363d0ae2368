import QtQuick
import QtQuick.Window
import QtQuick.Layouts
import Veldmark

// Shown before the program quits while the network is routed through Tor.
Window {
    id: window
    required property bool strict // the kill switch stays on
    required property bool busy   // the disconnect is under way
    signal disconnectWanted()
    signal quitWanted()
    signal cancelled()

    title: qsTr("Quit Veldmark")
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true
    flags: Qt.Dialog
    modality: Qt.ApplicationModal
    width: 480
    height: column.implicitHeight + 40
    minimumWidth: width
    minimumHeight: height
    color: Theme.surface
    onClosing: window.cancelled()

    WindowKeys { onCloseWanted: window.cancelled() }
    ColumnLayout {
        id: column
        x: 20
        y: 20
        width: parent.width - 40
        spacing: 12
        RowLayout {
            spacing: 12
            Symbol {
                Layout.alignment: Qt.AlignTop
                name: "exclamationmark.shield"
                size: 32
                color: Theme.warning
            }
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 6
                WrappedText {
                    Layout.fillWidth: true
                    text: qsTr("Your network is still routed through Tor")
                    font.pixelSize: Theme.headSize
                    font.weight: Font.DemiBold
                    Accessible.role: Accessible.Heading
                }
                WrappedText {
                    Layout.fillWidth: true
                    text: window.strict
                          ? qsTr("If you quit now, Tor keeps running and the kill switch stays on. Open Veldmark again later to restore your normal connection.")
                          : qsTr("If you quit now, Tor keeps running and your system proxy stays on. Open Veldmark again later to restore your normal connection.")
                    color: Theme.quiet
                }
            }
        }
        Flow {
            Layout.fillWidth: true
            Layout.topMargin: 8
            spacing: 8
            PushButton {
                text: window.busy ? qsTr("Disconnecting…") : qsTr("Disconnect & Quit")
                primary: true
                focus: true
                enabled: !window.busy
                onClicked: window.disconnectWanted()
                Keys.onReturnPressed: clicked()
            }
            PushButton {
                text: qsTr("Quit Anyway")
                enabled: !window.busy
                onClicked: window.quitWanted()
            }
            PushButton {
                text: qsTr("Cancel")
                onClicked: window.cancelled()
            }
        }
    }
}
