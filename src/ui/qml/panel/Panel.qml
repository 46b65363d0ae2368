import QtQuick
import QtQuick.Layouts
import Veldmark

// The whole panel, shown by the tray's popup and by the main window. Scrolls when it is taller than its window.
Rectangle {
    id: panel
    required property PanelModel model
    required property OptionsModel options
    readonly property int wantedHeight: column.implicitHeight + 2 * area.margin + footer.implicitHeight + 16
    readonly property bool escapes: !doctor.visible && !bridges.visible && !applications.visible && !card.choosing // no item uses Escape
    signal windowWanted(string name) // "circuits", "log", "settings", "report"
    signal chooserWanted()
    signal quitWanted()

    color: Theme.ground

    ScrollArea {
        id: area
        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: rule.top }
        margin: 12
        ColumnLayout {
            id: column
            spacing: 12
            Banner {
                Layout.fillWidth: true
                visible: panel.model.error !== ""
                text: panel.model.error
                closable: true
                onClosed: panel.model.dismissError()
                DownloadButton {
                    visible: panel.options.needsDownload
                    enabled: panel.options.canDownload
                    primary: true
                    tone: Theme.danger
                    onClicked: panel.options.download()
                }
                PushButton {
                    fill: Theme.surface
                    text: qsTr("Find the Cause")
                    symbol: "stethoscope"
                    help: qsTr("Checks what a connection needs on this computer, what blocks it and how to fix it")
                    onClicked: doctor.open()
                }
                PushButton {
                    fill: Theme.surface
                    text: qsTr("Show Tor Log")
                    help: qsTr("See everything Tor reported")
                    onClicked: panel.windowWanted("log")
                }
            }
            Banner {
                Layout.fillWidth: true
                visible: panel.model.torMissing
                tone: PanelModel.Warning
                text: panel.model.installHintIsCommand
                      ? qsTr("Tor isn't installed. Install it with this command, then click Recheck.")
                      : qsTr("Tor isn't installed. Install it with %1, then click Recheck.").arg(panel.model.installHint)
                CopyField {
                    width: column.width - 62
                    visible: panel.model.installHintIsCommand
                    text: panel.model.installHint
                    onCopied: text => panel.model.copy(text)
                }
                PushButton {
                    fill: Theme.surface
                    text: qsTr("Recheck")
                    symbol: "arrow.triangle.2.circlepath"
                    onClicked: panel.model.recheckTor()
                }
            }
            Hero {
                Layout.fillWidth: true
                model: panel.model
                onLogWanted: panel.windowWanted("log")
            }
            DNSCard {
                Layout.fillWidth: true
                visible: panel.model.dnsLeaks
                model: panel.model
            }
            ConnectionCard {
                Layout.fillWidth: true
                visible: panel.model.connected
                model: panel.model
                onCircuitsWanted: panel.windowWanted("circuits")
            }
            OptionsCard {
                id: card
                Layout.fillWidth: true
                model: panel.options
                onBridgesWanted: bridges.open()
                onApplicationsWanted: applications.open()
            }
        }
    }
    Rectangle {
        id: rule
        anchors { left: parent.left; right: parent.right; bottom: footer.top; bottomMargin: 6 }
        height: 1
        color: Theme.line
    }
    Footer {
        id: footer
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: 12; rightMargin: 12; bottomMargin: 6 }
        onSettingsWanted: panel.windowWanted("settings")
        onLogWanted: panel.windowWanted("log")
        onQuitWanted: panel.quitWanted()
    }
    DoctorSheet {
        id: doctor
        objectName: "doctor"
        model: panel.model.doctor
        onReportWanted: panel.windowWanted("report")
    }
    BridgesSheet { id: bridges; objectName: "bridges"; model: panel.options }
    ApplicationsSheet {
        id: applications
        objectName: "applications"
        model: panel.options
        onChooserWanted: panel.chooserWanted()
    }
}
