import QtQuick
import QtQuick.Layouts
import Veldmark

Pane {
    id: pane
    required property SettingsModel model
    signal chooserWanted()
    title: qsTr("Tor")
    subtitle: qsTr("The Tor program Veldmark runs")

    Card {
        Layout.fillWidth: true
        contentSpacing: 14
        SettingRow {
            symbol: "network"
            title: qsTr("Program")
            subtitle: pane.model.torPlace
            IconButton {
                visible: pane.model.installCommand !== ""
                symbol: "doc.on.doc"
                text: qsTr("Copy")
                onClicked: pane.model.copy(pane.model.installCommand)
            }
            StatusPill {
                text: pane.model.torStatus
                tone: pane.model.torFound ? PanelModel.Good : PanelModel.Danger
                symbol: pane.model.torFound ? "checkmark.circle.fill" : "xmark.circle.fill"
            }
        }
        Divider {}
        GridLayout {
            Layout.fillWidth: true
            columns: width < 430 ? 1 : 2
            WrappedText { Layout.fillWidth: true; text: pane.model.torLocked ? qsTr("Location: disconnect to change") : qsTr("Location") }
            SegmentedControl {
                name: qsTr("Location")
                names: [qsTr("Automatic"), qsTr("Custom location")]
                current: pane.model.torCustom ? 1 : 0
                enabled: !pane.model.torLocked
                onChosen: index => index === 0 ? pane.model.chooseTor("") : pane.chooserWanted()
            }
        }
    }
    Card {
        Layout.fillWidth: true
        visible: pane.model.canSeparateApps
        contentSpacing: 12
        SwitchRow {
            symbol: "arrow.triangle.branch"
            title: qsTr("Separate applications")
            subtitle: pane.model.separationProblem !== "" ? pane.model.separationProblem
                : pane.model.torLocked ? qsTr("Disconnect to change") : qsTr("Each application has circuits of its own")
            on: pane.model.separateApps
            enabled: !pane.model.torLocked
            onWanted: on => pane.model.separateApps = on
        }
        Note {
            text: qsTr("Sites cannot tell by the exit address that two applications are yours. Veldmark tells applications apart where the desktop starts each in a control group of its own, as GNOME and KDE do. Other programs share circuits with the rest of their login session or account.")
        }
    }
}
