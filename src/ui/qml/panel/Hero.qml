import QtQuick
import QtQuick.Layouts
import Veldmark

// The connection's state, and the button that changes it.
Rectangle {
    id: hero
    required property PanelModel model
    signal logWanted()

    implicitHeight: column.implicitHeight + 24
    radius: Theme.radius
    color: Theme.toneGround(model.tone)
    border.color: Theme.line
    Behavior on color { ColorAnimation { duration: Theme.quick } }

    ColumnLayout {
        id: column
        anchors { fill: parent; margins: 16; topMargin: 8 }
        spacing: 6

        PowerButton {
            Layout.alignment: Qt.AlignHCenter
            text: hero.model.powerLabel
            enabled: hero.model.powerEnabled
            tone: hero.model.tone
            busy: hero.model.busy
            progress: hero.model.progress
            focus: true
            Accessible.name: text === "" ? hero.model.title : text
            Accessible.description: hero.model.title + ". " + hero.model.detail
            onClicked: hero.model.pressPower()
        }
        Item {
            Layout.fillWidth: true
            implicitHeight: headline.implicitHeight
            Row {
                anchors.centerIn: parent
                spacing: 8
                Symbol {
                    anchors.verticalCenter: parent.verticalCenter
                    name: hero.model.symbol
                    size: 24
                    color: headline.color
                }
                FittedText {
                    id: headline
                    maximumWidth: hero.width - 80
                    text: hero.model.title
                    font.pixelSize: Theme.titleSize
                    font.weight: Font.DemiBold
                    color: hero.model.tone === PanelModel.Neutral ? Theme.text : Theme.tone(hero.model.tone)
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
            }
        }
        WrappedText {
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            text: hero.model.detail + (hero.model.busy && hero.model.progress > 0
                  ? " · " + Math.round(hero.model.progress * 100) + "\u00a0%" : "")
            color: Theme.text
        }
        Flow {
            id: chips
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: 6
            Layout.preferredWidth: Math.min(parent.width, pill.implicitWidth
                + (endpoint.visible ? endpoint.implicitWidth + spacing : 0) + 1)
            spacing: 8
            Chip {
                id: pill
                visible: text !== ""
                text: hero.model.pillText
                symbol: hero.model.pillSymbol
            }
            Chip {
                id: endpoint
                visible: hero.model.connected
                text: hero.model.endpoint
            }
        }
        ColumnLayout {
            Layout.fillWidth: true
            Layout.topMargin: 4
            visible: hero.model.steps.length > 0
            spacing: 3
            Repeater {
                model: hero.model.steps
                WrappedText {
                    required property string modelData
                    Layout.fillWidth: true
                    horizontalAlignment: Text.AlignHCenter
                    text: modelData
                    font.pixelSize: Theme.smallSize
                    color: Theme.text
                }
            }
        }
        ColumnLayout {
            Layout.fillWidth: true
            Layout.topMargin: 4
            visible: hero.model.offer !== ""
            WrappedText {
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                text: hero.model.offer
            }
            PushButton {
                Layout.alignment: Qt.AlignHCenter
                text: qsTr("Try Bridges")
                symbol: "point.3.connected.trianglepath.dotted"
                primary: true
                onClicked: hero.model.takeOffer()
            }
        }
        ColumnLayout {
            Layout.fillWidth: true
            visible: hero.model.waitingFor !== ""
            WrappedText {
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                text: hero.model.waitingFor
                font.pixelSize: Theme.smallSize
                color: Theme.text
            }
            LinkButton {
                Layout.alignment: Qt.AlignHCenter
                text: qsTr("Show Tor Log")
                help: qsTr("See everything Tor reported")
                onClicked: hero.logWanted()
            }
        }
        WrappedText {
            Layout.fillWidth: true
            Layout.topMargin: 4
            visible: text !== ""
            horizontalAlignment: Text.AlignHCenter
            text: hero.model.footnote
            font.pixelSize: Theme.smallSize
            color: Theme.quiet
        }
        PushButton {
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: 6
            visible: hero.model.canRestore
            text: qsTr("Restore Network")
            symbol: "arrow.uturn.backward"
            primary: true
            tone: Theme.warning
            onClicked: hero.model.restore()
        }
    }
}
