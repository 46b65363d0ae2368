import QtQuick
import QtQuick.Layouts
import Veldmark

// What must be read first: a sentence and the one next step.
Rectangle {
    id: banner
    required property string text
    property int tone: PanelModel.Danger
    property string symbol: "exclamationmark.triangle.fill"
    property bool closable: false
    default property alias actions: actions.data
    signal closed()

    implicitHeight: row.implicitHeight + 24
    radius: Theme.radius
    color: Theme.toneGround(tone)
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    RowLayout {
        id: row
        anchors { fill: parent; margins: 12 }
        spacing: 10
        Symbol {
            Layout.alignment: Qt.AlignTop
            Layout.topMargin: 2
            name: banner.symbol
            size: 18
            color: Theme.tone(banner.tone)
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 8
            TextEdit {
                Layout.fillWidth: true
                text: banner.text
                readOnly: true
                selectByMouse: true
                activeFocusOnTab: false
                wrapMode: Text.Wrap
                font.pixelSize: Theme.bodySize
                color: Theme.text
                selectionColor: Theme.accent
                selectedTextColor: Theme.onTone
                Accessible.ignored: true
            }
            Flow {
                id: actions
                Layout.fillWidth: true
                spacing: 8
                visible: children.length > 0
            }
        }
        IconButton {
            Layout.alignment: Qt.AlignTop
            Layout.topMargin: -6
            Layout.rightMargin: -6
            visible: banner.closable
            symbol: "xmark"
            text: qsTr("Close")
            color: Theme.text
            onClicked: banner.closed()
        }
    }
}
