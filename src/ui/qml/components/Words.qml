import QtQuick
import Veldmark

// Text. Wraps rather than being cut.
Text {
    font.pixelSize: Theme.bodySize
    color: Theme.text
    horizontalAlignment: Text.AlignLeft // the start of the row, whatever the language of the words
    wrapMode: Text.Wrap
    textFormat: Text.PlainText
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
