import QtQuick
import QtQuick.Layouts
import Veldmark

// The results of the checks, and the traffic.
Card {
    id: card
    required property PanelModel model
    signal circuitsWanted()

    title: qsTr("Connection")
    contentSpacing: 10

    FactRow {
        Layout.fillWidth: true
        symbol: "globe"
        title: qsTr("Exit IP")
        help: card.model.exitHelp
        FlagBadge { visible: card.model.exitCountry !== ""; country: card.model.exitCountry }
        TextMetrics { id: measure; font: address.font; text: address.text }
        TextEdit {
            id: address
            // Not the implicit width: that depends on the wrapping, which depends on the width.
            width: Math.min(Math.ceil(measure.advanceWidth) + 4, card.width * 0.5)
            horizontalAlignment: TextEdit.AlignRight
            text: card.model.exitAddress
            readOnly: true
            selectByMouse: true
            activeFocusOnTab: false
            wrapMode: Text.WrapAnywhere
            font.pixelSize: Theme.bodySize
            font.weight: Font.DemiBold
            color: card.model.exitKnown ? Theme.text : Theme.quiet
            selectionColor: Theme.accent
            selectedTextColor: Theme.onTone
            Accessible.role: Accessible.StaticText
            Accessible.name: qsTr("Exit IP") + ": " + text
        }
        IconButton {
            width: 26
            height: 26
            visible: card.model.exitKnown
            symbol: "doc.on.doc"
            text: qsTr("Copy")
            onClicked: card.model.copy(card.model.exitAddress)
        }
    }
    FactRow {
        Layout.fillWidth: true
        symbol: "checkmark.seal.fill"
        symbolColor: card.model.exitVerified ? Theme.good : Theme.quiet
        title: qsTr("Tor")
        help: card.model.exitHelp
        StatusPill {
            text: card.model.verification
            tone: card.model.exitVerified ? PanelModel.Good : PanelModel.Neutral
            symbol: card.model.exitVerified ? "checkmark.seal.fill" : ""
        }
    }
    FactRow {
        Layout.fillWidth: true
        symbol: "stethoscope"
        title: qsTr("Leaks")
        help: card.model.leakHelp
        StatusPill {
            text: card.model.leakText
            tone: card.model.leakTone
            symbol: card.model.leakTone === PanelModel.Good ? "checkmark.circle.fill"
                  : card.model.leakTone === PanelModel.Danger || card.model.leakTone === PanelModel.Warning
                    ? "exclamationmark.triangle.fill" : ""
        }
    }
    FactRow {
        Layout.fillWidth: true
        symbol: "arrow.up.arrow.down"
        title: qsTr("Traffic")
        WrappedText {
            text: "↓ " + card.model.downloaded + "   ↑ " + card.model.uploaded
            Accessible.name: qsTr("%1 received, %2 sent").arg(card.model.downloaded).arg(card.model.uploaded)
        }
    }
    TrafficPlot {
        Layout.fillWidth: true
        implicitHeight: 36
        history: card.model.traffic
        downColor: Theme.accent
        upColor: Theme.quiet
        gridColor: Theme.line
        Accessible.role: Accessible.Chart
        Accessible.name: qsTr("Traffic of the last two minutes")
    }
    WrappedText {
        Layout.fillWidth: true
        visible: text !== ""
        text: card.model.optimizeText
        font.pixelSize: Theme.smallSize
        color: Theme.quiet
    }
    RowLayout {
        Layout.fillWidth: true
        spacing: 8
        TileButton {
            Layout.fillWidth: true
            Layout.fillHeight: true
            symbol: "arrow.triangle.2.circlepath"
            text: qsTr("New Identity")
            help: qsTr("Ask Tor for fresh circuits and a new exit IP")
            onClicked: card.model.newIdentity()
        }
        TileButton {
            Layout.fillWidth: true
            Layout.fillHeight: true
            symbol: "stethoscope"
            text: qsTr("Leak Test")
            help: qsTr("Check the exit IP and try a direct connection that skips Tor")
            enabled: !card.model.checking
            onClicked: card.model.leakTest()
        }
        TileButton {
            Layout.fillWidth: true
            Layout.fillHeight: true
            symbol: "point.3.filled.connected.trianglepath.dotted"
            text: qsTr("Circuits")
            help: qsTr("See the path your traffic takes: entry, middle and exit relays")
            onClicked: card.circuitsWanted()
        }
    }
}
