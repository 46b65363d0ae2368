import QtQuick
import QtQuick.Layouts
import Veldmark

// DNS lookups that can go around Tor, and what to do about it.
Card {
    id: card
    required property PanelModel model
    fill: Theme.dangerGround

    RowLayout {
        Layout.fillWidth: true
        spacing: 10
        Symbol { Layout.alignment: Qt.AlignTop; name: "exclamationmark.triangle.fill"; size: 18; color: Theme.danger }
        WrappedText {
            Layout.fillWidth: true
            text: qsTr("Lookups can go around Tor")
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
    }
    Repeater {
        model: card.model.leakingResolvers
        WrappedText {
            required property string modelData
            Layout.fillWidth: true
            text: modelData
            font.pixelSize: Theme.smallSize
            wrapMode: Text.WrapAnywhere
        }
    }
    WrappedText {
        visible: text !== ""
        text: card.model.moreResolvers
        font.pixelSize: Theme.smallSize
    }
    RowLayout {
        spacing: 8
        PushButton {
            text: qsTr("Fix DNS")
            primary: true
            tone: Theme.danger
            onClicked: card.model.fixDNS()
        }
        PushButton {
            text: qsTr("Re-test")
            fill: Theme.surface
            onClicked: card.model.retestDNS()
        }
    }
}
