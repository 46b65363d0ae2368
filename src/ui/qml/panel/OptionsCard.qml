import QtQuick
import QtQuick.Layouts
import Veldmark

// The connection's options. Those of a whole connection are locked while it lasts.
Card {
    id: card
    required property OptionsModel model
    readonly property bool choosing: exits.open || bridges.open // a list is open; Escape closes it
    signal bridgesWanted()
    signal applicationsWanted()

    title: qsTr("Options")
    contentSpacing: 9

    RowLayout {
        visible: card.model.locked
        spacing: 8
        Symbol { name: "lock.fill"; size: 13 }
        WrappedText {
            Layout.fillWidth: true
            text: qsTr("Disconnect to change")
            font.pixelSize: Theme.smallSize
            color: Theme.quiet
        }
    }
    SwitchRow {
        symbol: "lock.shield.fill"
        title: qsTr("Strict mode")
        subtitle: qsTr("Kill switch: block anything not using Tor")
        help: qsTr("Blocks every connection that doesn't go through Tor, including UDP and IPv6. Apps that ignore proxy settings won't connect at all instead of leaking.")
        on: card.model.strictMode
        enabled: !card.model.locked
        onWanted: on => card.model.strictMode = on
    }
    SwitchRow {
        symbol: "wifi"
        title: qsTr("Allow local network")
        on: card.model.allowLocalNetwork
        enabled: !card.model.locked
        onWanted: on => card.model.allowLocalNetwork = on
    }
    ChoiceRow {
        id: exits
        symbol: "mappin"
        title: qsTr("Exit country")
        subtitle: qsTr("Where your traffic appears to come from")
        note: card.model.exitWarning
        noteColor: Theme.warning
        unlisted: card.model.exitUnlisted
        enabled: !card.model.locked
        names: card.model.exitNames
        current: card.model.exitIndex
        onChosen: index => card.model.exitIndex = index
    }
    ChoiceRow {
        id: bridges
        symbol: "point.3.connected.trianglepath.dotted"
        title: qsTr("Bridges")
        subtitle: qsTr("For networks that block or watch Tor")
        note: card.model.bridgeNote
        noteColor: card.model.bridgeNoteIsWarning ? Theme.warning : Theme.quiet
        enabled: !card.model.locked
        names: card.model.bridgeNames
        current: card.model.bridgeIndex
        onChosen: index => card.model.bridgeIndex = index
    }
    RowLayout {
        Layout.leftMargin: 30
        visible: card.model.needsDownload || card.model.customChosen || card.model.downloadText !== ""
        spacing: 8
        DownloadButton {
            visible: card.model.needsDownload
            enabled: card.model.canDownload
            onClicked: card.model.download()
        }
        PushButton {
            visible: card.model.customChosen
            text: qsTr("Edit…")
            help: qsTr("Custom bridges")
            enabled: !card.model.locked
            onClicked: card.bridgesWanted()
        }
        WrappedText {
            Layout.fillWidth: true
            text: card.model.downloadText
            font.pixelSize: Theme.smallSize
            color: Theme.quiet
        }
    }
    SwitchRow {
        symbol: "gauge"
        title: qsTr("Optimize for speed")
        subtitle: qsTr("New circuits for everything")
        on: card.model.optimizeSpeed
        enabled: !card.model.locked
        onWanted: on => card.model.optimizeSpeed = on
    }
    SwitchRow {
        symbol: "terminal"
        title: qsTr("Terminal mode")
        on: card.model.terminalMode
        onWanted: on => card.model.terminalMode = on
    }
    ErrorLine {
        Layout.leftMargin: 30
        text: card.model.terminalError
    }
    LinkRow {
        symbol: "square.grid.2x2"
        title: qsTr("App exceptions")
        value: card.model.applicationCount
        onClicked: card.applicationsWanted()
    }
}
