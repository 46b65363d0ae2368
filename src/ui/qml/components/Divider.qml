import QtQuick
import QtQuick.Layouts
import Veldmark

Rectangle {
    Layout.fillWidth: true
    implicitHeight: 1
    color: Theme.line
}
