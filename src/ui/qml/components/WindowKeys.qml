import QtQuick
import Veldmark

// The keys that every window has: Ctrl+W and Escape close it, Ctrl+Q asks to quit.
Item {
    id: keys
    property bool escapes: true // no item inside the window uses Escape now
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
