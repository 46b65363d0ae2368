import QtQuick
import QtQuick.Window
import QtQuick.Templates as T
import Veldmark

// The power button: a disc in the colour of the session's state, surrounded by a ring. The ring shows Tor's progress while it connects, and
// a turning arc during a wait of unknown length.
T.Button {
    id: button
    required property int tone
    required property bool busy
    required property double progress // 0…1
    // The full ring stays while the checks confirm the session.
    readonly property bool closed: !busy && (tone === PanelModel.Good || tone === PanelModel.Info)

    implicitWidth: 140
    implicitHeight: 140
    hoverEnabled: true

    ProgressRing {
        id: ring
        anchors.fill: parent
        visible: button.busy || button.closed
        color: button.closed ? Theme.tone(button.tone) : Theme.accent
        opacity: button.closed ? 0.35 : 1
        track: button.closed ? "transparent" : Theme.pressed
        value: button.closed ? 1 : button.progress > 0 ? button.progress : 0.22
        Behavior on value { NumberAnimation { duration: Theme.quick; easing.type: Easing.OutCubic } }
        NumberAnimation on turn {
            running: button.busy && button.progress <= 0 && button.visible && !ColorScheme.reducedMotion
                && (button.Window.window?.visible ?? false)
            from: 0; to: 1
            duration: 1400
            loops: Animation.Infinite
            onStopped: ring.turn = 0
        }
    }
    background: Rectangle {
        anchors.fill: parent
        anchors.margins: 12
        radius: width / 2
        color: button.busy ? Theme.surface
             : !button.enabled ? Theme.raised
             : button.tone === PanelModel.Neutral ? Theme.accent : Theme.tone(button.tone)
        border.width: button.busy || !button.enabled ? 1 : 0
        border.color: Theme.line
        scale: button.down && !ColorScheme.reducedMotion ? 0.96 : 1
        Behavior on color { ColorAnimation { duration: Theme.quick } }
        Behavior on scale { NumberAnimation { duration: Theme.quick } }
        Rectangle {
            anchors.fill: parent
            anchors.margins: -6
            radius: width / 2
            color: "transparent"
            border.width: button.visualFocus ? 3 : button.hovered && button.enabled ? 2 : 0
            border.color: button.visualFocus ? Theme.text : Theme.edge
        }
    }
    contentItem: Item {
        Column {
            anchors.centerIn: parent
            spacing: 6
            opacity: button.enabled || !button.busy ? 1 : 0.5
            Symbol {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: !button.busy || button.text !== ""
                name: button.busy ? "xmark" : "power"
                size: button.busy ? 26 : 38
                color: caption.color
            }
            Text {
                id: caption
                anchors.horizontalCenter: parent.horizontalCenter
                width: 96
                visible: text !== ""
                text: button.text
                font.pixelSize: Theme.smallSize
                font.weight: Font.DemiBold
                color: button.busy ? Theme.text : button.enabled ? Theme.onTone : Theme.quiet
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
            }
        }
    }
}
