import QtQuick
import QtQuick.Window
import QtQuick.Layouts
import QtQuick.Templates as T
import Veldmark

Window {
    id: window
    required property SettingsModel model
    property int pane: 0
    signal torChooserWanted()
    signal windowWanted(string name) // "report"
    signal quitWanted()

    title: qsTr("Settings")
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true
    width: 760
    height: 540
    minimumWidth: 640
    minimumHeight: 420
    color: Theme.ground

    readonly property var panes: [
        { title: qsTr("General"), symbol: "gearshape", page: general },
        { title: qsTr("Tor"), symbol: "network", page: tor },
        { title: qsTr("Bridges"), symbol: "point.3.connected.trianglepath.dotted", page: bridges },
        { title: qsTr("Terminal"), symbol: "terminal", page: terminal },
        { title: qsTr("Recovery"), symbol: "lifepreserver", page: recovery },
        { title: qsTr("About"), symbol: "info.circle", page: about }
    ]
    Component { id: general; GeneralPane { model: window.model } }
    Component { id: tor; TorPane { model: window.model; onChooserWanted: window.torChooserWanted() } }
    Component { id: bridges; BridgesPane { model: window.model } }
    Component { id: terminal; TerminalPane { model: window.model } }
    Component { id: recovery; RecoveryPane { model: window.model; onReportWanted: window.windowWanted("report") } }
    Component { id: about; AboutPane { model: window.model } }

    RowLayout {
        anchors.fill: parent
        spacing: 0
        Rectangle {
            Layout.fillHeight: true
            // Wide enough for the longest name in the user's language, within limits.
            readonly property double longest: window.panes.reduce((most, pane) => Math.max(most, measure.advanceWidth(pane.title)), 0)
            implicitWidth: Math.min(250, Math.max(188, Math.ceil(longest) + 70))
            color: Theme.surface
            FontMetrics { id: measure; font.pixelSize: Theme.bodySize; font.weight: Font.DemiBold }
            Column {
                anchors { fill: parent; margins: 10; topMargin: 24 }
                spacing: 4
                Accessible.role: Accessible.PageTabList
                Accessible.name: qsTr("Settings")
                Repeater {
                    model: window.panes
                    T.TabButton {
                        id: tab
                        required property int index
                        required property var modelData
                        width: parent.width
                        height: Math.max(36, label.implicitHeight + 14)
                        text: modelData.title
                        checkable: false // `checked` follows the shown pane
                        checked: window.pane === index
                        hoverEnabled: true
                        Accessible.selectable: true
                        Accessible.selected: checked
                        Accessible.name: text
                        onClicked: window.pane = index
                        Keys.onUpPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
                        Keys.onDownPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
                        contentItem: Item {
                            Symbol {
                                anchors.left: parent.left
                                anchors.leftMargin: 10
                                anchors.verticalCenter: parent.verticalCenter
                                name: tab.modelData.symbol
                                size: 18
                                color: tab.checked ? Theme.accent : Theme.quiet
                            }
                            WrappedText {
                                id: label
                                anchors.left: parent.left
                                anchors.leftMargin: 38
                                width: parent.width - 44
                                anchors.verticalCenter: parent.verticalCenter
                                text: tab.text
                                font.weight: tab.checked ? Font.DemiBold : Font.Normal
                                Accessible.ignored: true
                            }
                        }
                        background: Rectangle {
                            radius: Theme.smallRadius
                            color: tab.checked ? Theme.accentGround : tab.hovered ? Theme.raised : "transparent"
                            FocusRing { shown: tab.visualFocus }
                        }
                    }
                }
            }
        }
        Rectangle { Layout.fillHeight: true; implicitWidth: 1; color: Theme.line }
        Loader {
            Layout.fillWidth: true
            Layout.fillHeight: true
            sourceComponent: window.panes[window.pane].page
        }
    }
    WindowKeys { onCloseWanted: window.close(); onQuitWanted: window.quitWanted() }
}
