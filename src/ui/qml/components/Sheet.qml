import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Veldmark

// A dialogue inside its window, above the rest. Escape closes it without a change.
T.Popup {
    id: sheet
    required property string title
    default property alias content: column.data
    property alias buttons: buttons.data

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    width: parent ? Math.min(parent.width - 24, 480) : 380
    height: parent ? Math.min(parent.height - 24, body.implicitHeight + 40) : 400
    padding: 20
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape

    T.Overlay.modal: Rectangle { color: Theme.dark ? "#b0000000" : "#70000000" }
    background: Rectangle {
        radius: Theme.radius
        color: Theme.surface
        border.color: Theme.line
    }
    contentItem: FocusScope {
        focus: true
        Accessible.role: Accessible.Dialog
        Accessible.name: sheet.title
        ColumnLayout {
            id: body
            anchors.fill: parent
            spacing: 16
            WrappedText {
                Layout.fillWidth: true
                text: sheet.title
                font.pixelSize: Theme.headSize
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }
            ColumnLayout {
                id: column
                Layout.fillWidth: true
                Layout.fillHeight: true
                spacing: 12
            }
            Flow {
                id: buttons
                Layout.fillWidth: true
                layoutDirection: Qt.RightToLeft
                spacing: 8
            }
        }
    }
}
