import QtQuick
import Veldmark

// Text as wide as its words, up to a limit at which it wraps.
Text {
    id: fitted
    property double maximumWidth: 1000

    width: Math.min(Math.ceil(measure.advanceWidth) + 2, maximumWidth)
    font.pixelSize: Theme.bodySize
    color: Theme.text
    wrapMode: Text.Wrap
    textFormat: Text.PlainText

    TextMetrics {
        id: measure
        font: fitted.font
        text: fitted.text
    }
}
