import QtQuick
import QtQuick.Window
import QtQuick.Layouts
import Veldmark

Window {
    id: window
    required property CircuitsModel model
    signal quitWanted()

    title: qsTr("Circuits")
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true
    width: 1000
    height: 640
    minimumWidth: 640
    minimumHeight: 420
    color: Theme.ground

    // The circuits are read again while the window is visible.
    readonly property bool seen: visible && visibility !== Window.Minimized
    onSeenChanged: model.seen = seen
    Component.onDestruction: model.seen = false

    ColumnLayout {
        anchors.fill: parent
        spacing: 0
        RowLayout {
            Layout.fillWidth: true
            Layout.margins: 16
            spacing: 8
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 2
                WrappedText {
                    text: qsTr("Circuits")
                    font.pixelSize: Theme.titleSize
                    font.weight: Font.DemiBold
                    Accessible.role: Accessible.Heading
                }
                WrappedText {
                    Layout.fillWidth: true
                    text: window.model.subtitle
                    font.pixelSize: Theme.smallSize
                    color: Theme.quiet
                }
            }
            WrappedText {
                Layout.maximumWidth: 190
                visible: text !== ""
                text: window.model.optimizeText
                horizontalAlignment: Text.AlignRight
                font.pixelSize: Theme.smallSize
                color: Theme.quiet
            }
            HelpSign {
                visible: window.model.error !== ""
                symbol: "exclamationmark.triangle.fill"
                color: Theme.warning
                text: window.model.error
            }
            PushButton {
                text: qsTr("New Identity")
                symbol: "arrow.triangle.2.circlepath"
                help: qsTr("Ask Tor for fresh circuits and a new exit IP")
                enabled: window.model.connected
                onClicked: window.model.newIdentity()
            }
            PushButton {
                text: qsTr("Find Faster")
                symbol: "point.3.filled.connected.trianglepath.dotted"
                help: qsTr("Time a request through Tor and get fresh circuits if it's slow")
                enabled: window.model.connected && !window.model.optimizing
                onClicked: window.model.optimizeCircuits()
            }
        }
        Divider {}
        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: 0
            Item {
                Layout.fillWidth: true
                Layout.fillHeight: true
                CircuitGraphView {
                    id: graph
                    objectName: "graph"
                    anchors.fill: parent
                    visible: window.model.connected && !window.model.empty
                    model: window.model
                    background: Theme.ground
                    ink: Theme.text
                    faintInk: Theme.quiet
                    guide: Theme.line
                    outline: Theme.dark ? "transparent" : "#8a8a98"
                    drawFlags: ColorScheme.flagsDrawn
                    emphasis: standingOut ? 1 : 0
                    Behavior on emphasis { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic } }
                    Accessible.role: Accessible.Graphic
                    Accessible.name: window.model.subtitle
                    Rectangle {
                        id: help
                        visible: words.text !== ""
                        x: Math.max(8, Math.min(graph.width - width - 8, graph.hoveredAt.x - width / 2))
                        y: graph.hoveredAt.y > height + 40 ? graph.hoveredAt.y - height - 26 : graph.hoveredAt.y + 44
                        width: words.width + 20
                        height: words.height + 14
                        radius: Theme.smallRadius
                        color: Theme.raised
                        border.color: Theme.edge
                        FittedText {
                            id: words
                            x: 10
                            y: 7
                            maximumWidth: 260
                            text: graph.hoveredHelp
                            font.pixelSize: Theme.smallSize
                        }
                    }
                }
                EmptyState {
                    anchors.centerIn: parent
                    width: parent.width - 48
                    visible: !graph.visible
                    symbol: window.model.connected ? "point.3.connected.trianglepath.dotted" : "power"
                    title: window.model.connected ? qsTr("Reading circuits…") : qsTr("Connect to see your circuits")
                    text: window.model.connected ? window.model.error : ""
                }
            }
            Rectangle {
                Layout.fillHeight: true
                visible: graph.visible
                implicitWidth: 1
                color: Theme.line
            }
            CircuitsSidebar {
                Layout.fillHeight: true
                visible: graph.visible
                Layout.preferredWidth: Math.max(230, Math.min(300, window.width * 0.28))
                model: window.model
            }
        }
    }
    WindowKeys { onCloseWanted: window.close(); onQuitWanted: window.quitWanted() }
}
