import QtQuick
import QtQuick.Layouts
import Veldmark

// A pane's heading, and its groups below.
ScrollArea {
    id: pane
    required property string title
    required property string subtitle
    default property alias groups: groups.data

    margin: 24
    column: ColumnLayout {
        spacing: 20
        ColumnLayout {
            spacing: 2
            WrappedText {
                Layout.fillWidth: true
                text: pane.title
                font.pixelSize: Theme.titleSize
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }
            WrappedText {
                Layout.fillWidth: true
                text: pane.subtitle
                color: Theme.quiet
            }
        }
        ColumnLayout {
            id: groups
            Layout.fillWidth: true
            spacing: 20
        }
    }
}
