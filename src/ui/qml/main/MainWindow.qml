import QtQuick
import QtQuick.Window
import Veldmark

// The window "main": the panel, and the only access without a tray.
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
    width: 400
    // As tall as its content, until the user resizes it.
    readonly property int contentHeight: Math.max(minimumHeight, Math.min(panel.wantedHeight, 768, Screen.desktopAvailableHeight - 48))
    property int chosenHeight: 0 // 0: not chosen
    property var ownHeights: ({}) // the content's previous heights: a window manager may report them late
    onContentHeightChanged: ownHeights[contentHeight] = true
    onHeightChanged: {
        if (visible && visibility === Window.Windowed && !ownHeights[height])
            chosenHeight = height
    }
    height: chosenHeight > 0 ? chosenHeight : contentHeight
    minimumWidth: 360
    minimumHeight: 420
    maximumWidth: 520
    color: Theme.ground

    Panel {
        id: panel
        objectName: "panel"
        anchors.fill: parent
        model: window.panelModel
        options: window.optionsModel
        onWindowWanted: name => window.windowWanted(name)
        onChooserWanted: window.chooserWanted()
        onQuitWanted: window.quitWanted()
    }
    WindowKeys { onCloseWanted: window.close(); escapes: panel.escapes; onQuitWanted: window.quitWanted() }
}
