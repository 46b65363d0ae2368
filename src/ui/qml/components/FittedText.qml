import QtQuick
import Veldmark

// Text as wide as its words, which wraps at a maximum width.
Text {
    id: fitted
    property double maximumWidth: 1000

    readonly property double longest: text.split("\n").reduce((most, line) => Math.max(most, measure.advanceWidth(line)), 0)

    width: Math.min(Math.ceil(longest) + 2, maximumWidth)
    font.pixelSize: Theme.bodySize
    color: Theme.text
    wrapMode: Text.Wrap
    textFormat: Text.PlainText

    FontMetrics { id: measure; font: fitted.font }
}
