import QtQuick
import QtQuick.Window
import Veldmark

// One of the program's symbols, in a colour.
Image {
    required property string name
    property int size: 16
    property color color: Theme.quiet

    width: size
    height: size
    sourceSize.width: Math.round(size * Screen.devicePixelRatio)
    sourceSize.height: Math.round(size * Screen.devicePixelRatio)
    source: name === "" ? "" : "image://symbol/" + name + "/" + color
    Accessible.ignored: true
}
