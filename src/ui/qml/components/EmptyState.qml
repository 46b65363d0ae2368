import QtQuick
import QtQuick.Layouts
import Veldmark

// The message in place of an empty list.
ColumnLayout {
    id: state
    required property string symbol
    required property string title
    property string text

    spacing: 8
    Symbol {
        Layout.alignment: Qt.AlignHCenter
        name: state.symbol
        size: 40
    }
    WrappedText {
        Layout.alignment: Qt.AlignHCenter
        Layout.fillWidth: true
        Layout.maximumWidth: 420
        horizontalAlignment: Text.AlignHCenter
        text: state.title
        font.pixelSize: Theme.headSize
        font.weight: Font.DemiBold
    }
    WrappedText {
        Layout.alignment: Qt.AlignHCenter
        Layout.fillWidth: true
        Layout.maximumWidth: 420
        horizontalAlignment: Text.AlignHCenter
        visible: text !== ""
        text: state.text
        color: Theme.quiet
    }
}
