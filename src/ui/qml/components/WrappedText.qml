import QtQuick
import Veldmark

// Text that wraps and is never cut.
Text {
    font.pixelSize: Theme.bodySize
    color: Theme.text
    horizontalAlignment: Text.AlignLeft // the start of the row, in any language
    wrapMode: Text.Wrap
    textFormat: Text.PlainText
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
