pragma Singleton
import QtQuick
import Veldmark

// Colours, spacing and type of every window, light and dark. Every text colour has a contrast of at least 4.5:1 against each of its
// grounds, every symbol and control edge 3:1; a test computes it.
QtObject {
    readonly property bool dark: ColorScheme.dark
    readonly property bool mirrored: ColorScheme.mirrored
    readonly property int quick: ColorScheme.reducedMotion ? 0 : 160 // milliseconds

    readonly property color ground: dark ? "#15151b" : "#f4f4f8"
    readonly property color surface: dark ? "#1f1f27" : "#ffffff"
    readonly property color raised: dark ? "#2a2a34" : "#ededf3"
    readonly property color pressed: dark ? "#363643" : "#dfdfe8"
    readonly property color line: dark ? "#31313c" : "#e2e2ea"
    readonly property color edge: dark ? "#797989" : "#7d7d8c"
    readonly property color text: dark ? "#f2f2f7" : "#1a1a22"
    readonly property color quiet: dark ? "#b0b0be" : "#565664"

    readonly property color accent: dark ? "#b39dff" : "#6236c9"
    readonly property color good: dark ? "#5fd795" : "#0f6e3c"
    readonly property color info: dark ? "#82b6ff" : "#1558b8"
    readonly property color warning: dark ? "#f4bd55" : "#835200"
    readonly property color danger: dark ? "#ff958c" : "#b0231c"
    readonly property color onTone: dark ? "#15151b" : "#ffffff" // on a filled tone

    // Grounds of cards with a meaning.
    readonly property color accentGround: dark ? "#2a2542" : "#eee9fb"
    readonly property color goodGround: dark ? "#17332a" : "#e0f3e8"
    readonly property color infoGround: dark ? "#1b2c47" : "#e3eefc"
    readonly property color warningGround: dark ? "#3a2d14" : "#fcf0d8"
    readonly property color dangerGround: dark ? "#431f21" : "#fce6e4"

    readonly property int unit: 8
    readonly property int radius: 12
    readonly property int smallRadius: 8
    readonly property int control: 32 // the height of buttons and fields

    readonly property int titleSize: 22
    readonly property int headSize: 16
    readonly property int bodySize: 14
    readonly property int smallSize: 12
    readonly property string monospaced: "monospace"

    function tone(tone: int): color {
        switch (tone) {
        case PanelModel.Accent: return accent
        case PanelModel.Good: return good
        case PanelModel.Info: return info
        case PanelModel.Warning: return warning
        case PanelModel.Danger: return danger
        }
        return quiet
    }

    function toneGround(tone: int): color {
        switch (tone) {
        case PanelModel.Accent: return accentGround
        case PanelModel.Good: return goodGround
        case PanelModel.Info: return infoGround
        case PanelModel.Warning: return warningGround
        case PanelModel.Danger: return dangerGround
        }
        return surface
    }
}
