import QtQuick
import QtQuick.Layouts
import Veldmark

// The reason for a failure in this group.
RowLayout {
    property alias text: words.text
    Layout.fillWidth: true
    visible: text !== ""
    spacing: 8
    Symbol { name: "exclamationmark.triangle.fill"; color: Theme.danger; Layout.alignment: Qt.AlignTop }
    WrappedText {
        id: words
        Layout.fillWidth: true
        color: Theme.danger
        font.pixelSize: Theme.smallSize
    }
}
