import QtQuick
import Veldmark

// What the same keys do in every window: Ctrl+W and Escape close it, Ctrl+Q asks to quit.
Item {
    id: keys
    property bool escapes: true // Escape belongs to nothing inside the window at the moment
    signal closeWanted()
    signal quitWanted()

    Shortcut {
        sequences: [StandardKey.Close]
        onActivated: keys.closeWanted()
    }
    Shortcut {
        sequence: "Escape"
        enabled: keys.escapes
        onActivated: keys.closeWanted()
    }
    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: keys.quitWanted()
    }
}
