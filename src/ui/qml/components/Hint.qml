import QtQuick
import QtQuick.Templates as T
import Veldmark

// A control's help, for the mouse and the keyboard. Place it inside the control.
Item {
    id: hint
    required property T.Control control
    required property string text

    Loader {
        active: hint.text !== "" && (hint.control.hovered || hint.control.visualFocus)
        sourceComponent: T.ToolTip {
            parent: hint.control
            y: hint.control.height + 6
            x: (hint.control.width - width) / 2
            margins: 8
            padding: 8
            delay: 500
            visible: true
            closePolicy: T.Popup.NoAutoClose
            contentItem: Item {
                FittedText {
                    id: words
                    text: hint.text
                    font.pixelSize: Theme.smallSize
                    maximumWidth: 280
                }
            }
            implicitWidth: words.width + 16
            implicitHeight: words.height + 16
            background: Rectangle {
                color: Theme.raised
                radius: Theme.smallRadius
                border.color: Theme.edge
            }
        }
    }
}
