import QtQuick
import QtQuick.Window
import Veldmark

// The panel at the tray's icon. It closes when another window becomes active, or with Escape.
Window {
    id: window
    required property PanelModel panelModel
    required property OptionsModel optionsModel
    signal windowWanted(string name)
    signal chooserWanted()
    signal quitWanted()

    title: qsTr("Veldmark")
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true
    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
    width: 380
    height: Math.min(panel.wantedHeight, 720, Screen.desktopAvailableHeight - 16)
    color: Theme.ground
    onActiveChanged: if (!active) hide()

    Panel {
        id: panel
        anchors.fill: parent
        model: window.panelModel
        options: window.optionsModel
        border.color: Theme.edge
        focus: true
        onWindowWanted: name => window.windowWanted(name)
        onChooserWanted: window.chooserWanted()
        onQuitWanted: window.quitWanted()
    }
    WindowKeys { onCloseWanted: window.close(); escapes: panel.escapes; onQuitWanted: window.quitWanted() }
}
