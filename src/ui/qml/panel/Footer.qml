import QtQuick
import QtQuick.Layouts
import Veldmark

RowLayout {
    id: footer
    signal settingsWanted()
    signal logWanted()
    signal quitWanted()

    IconButton {
        symbol: "gearshape"
        text: qsTr("Settings")
        onClicked: footer.settingsWanted()
    }
    IconButton {
        symbol: "doc.text"
        text: qsTr("Tor Log")
        onClicked: footer.logWanted()
    }
    Item { Layout.fillWidth: true }
    LinkButton {
        text: qsTr("Quit")
        tone: Theme.quiet
        onClicked: footer.quitWanted()
    }
}
