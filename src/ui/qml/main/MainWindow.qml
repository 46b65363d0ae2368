import QtQuick
import QtQuick.Window
import Veldmark

// The window "main": the panel, and the way in where there is no tray.
Window {
    id: window
    required property PanelModel panelModel
    required property OptionsModel optionsModel
    signal windowWanted(string name)
    signal chooserWanted()
    signal quitWanted()

    title: qsTr("Veldmark")
    width: 400
    height: Math.min(panel.wantedHeight, 768, Screen.desktopAvailableHeight - 48)
    minimumWidth: 360
    minimumHeight: 420
    maximumWidth: 520
    color: Theme.ground

    Panel {
        id: panel
        anchors.fill: parent
        model: window.panelModel
        options: window.optionsModel
        onWindowWanted: name => window.windowWanted(name)
        onChooserWanted: window.chooserWanted()
        onQuitWanted: window.quitWanted()
    }
}
