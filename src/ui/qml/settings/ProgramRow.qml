import QtQuick
import Veldmark

// A transport program, found or not.
SettingRow {
    id: row
    required property bool found
    required property string onComputer

    symbol: found ? "checkmark.circle.fill" : "exclamationmark.circle.fill"
    symbolColor: found ? Theme.good : Theme.warning
    WrappedText {
        text: row.found ? qsTr("Found %1").arg(row.onComputer) : qsTr("Not found")
        color: row.found ? Theme.quiet : Theme.warning
    }
}
