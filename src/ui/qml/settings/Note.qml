import QtQuick
import QtQuick.Layouts
import Veldmark

// An explanation below the rows of a group.
WrappedText {
    Layout.fillWidth: true
    font.pixelSize: Theme.smallSize
    color: Theme.quiet
    visible: text !== ""
}
