import QtQuick
import Veldmark

SettingRow {
    id: row
    required property bool on
    property string help
    signal wanted(bool on)

    Switch {
        text: row.title
        on: row.on
        help: row.help !== "" ? row.help : row.subtitle
        enabled: row.enabled
        onWanted: on => row.wanted(on)
    }
}
