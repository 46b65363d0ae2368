import QtQuick
import Veldmark

// Fetches the bridge programs.
PushButton {
    text: qsTr("Download")
    symbol: "arrow.down.circle.fill"
    help: qsTr("Downloads the official Tor Expert Bundle from the Tor Project, for bridge programs and built-in bridges")
}
