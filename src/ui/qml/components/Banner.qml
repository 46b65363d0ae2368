import QtQuick
import Veldmark

// An important message: a sentence and the next step.
Rectangle {
    id: banner
    required property string text
    property int tone: PanelModel.Danger
    property string symbol: "exclamationmark.triangle.fill"
    property bool closable: false
    default property alias actions: actions.data
    signal closed()

    implicitHeight: column.height + 24
    radius: Theme.radius
    color: Theme.toneGround(tone)
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    Symbol {
        anchors.left: parent.left
        anchors.leftMargin: 12
        y: 14
        name: banner.symbol
        size: 18
        color: Theme.tone(banner.tone)
    }
    Column {
        id: column
        anchors.left: parent.left
        anchors.leftMargin: 40
        y: 12
        width: banner.width - 40 - (banner.closable ? 46 : 12)
        spacing: 8
        TextEdit {
            width: parent.width
            text: banner.text
            readOnly: true
            selectByMouse: true
            activeFocusOnTab: false
            horizontalAlignment: TextEdit.AlignLeft
            wrapMode: Text.Wrap
            font.pixelSize: Theme.bodySize
            color: Theme.text
            selectionColor: Theme.accent
            selectedTextColor: Theme.onTone
            Accessible.ignored: true
        }
        Flow {
            id: actions
            width: parent.width
            spacing: 8
        }
    }
    IconButton {
        anchors { right: parent.right; top: parent.top; margins: 6 }
        visible: banner.closable
        symbol: "xmark"
        text: qsTr("Close")
        color: Theme.text
        onClicked: banner.closed()
    }
}
