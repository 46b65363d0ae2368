import QtQuick
import QtQuick.Templates as T
import Veldmark

// A choice of one entry from a drop-down list.
T.ComboBox {
    id: box
    required property string name // for screen readers
    property string unlisted // shown while no entry of the list is chosen

    implicitWidth: Math.min(190, label.implicitWidth + 44)
    implicitHeight: Theme.control
    hoverEnabled: true
    leftPadding: mirrored ? 32 : 12
    rightPadding: mirrored ? 12 : 32
    displayText: currentIndex < 0 ? unlisted : currentText
    Accessible.name: name
    Accessible.description: displayText // the chosen entry, which the control itself does not announce

    contentItem: Text {
        id: label
        text: box.displayText
        font.pixelSize: Theme.bodySize
        color: Theme.text
        opacity: box.enabled ? 1 : 0.55
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
    indicator: Symbol {
        x: box.mirrored ? 10 : box.width - width - 10
        y: (box.height - height) / 2
        name: "chevron.down"
        size: 12
        opacity: box.enabled ? 1 : 0.5
    }
    background: Rectangle {
        radius: Theme.smallRadius
        color: box.down ? Theme.pressed : Theme.raised
        border.width: box.hovered && box.enabled ? 1 : 0
        border.color: Theme.edge
        FocusRing { shown: box.visualFocus }
    }
    delegate: T.ItemDelegate {
        id: item
        required property int index
        required property var modelData
        width: ListView.view.width
        height: 34
        text: modelData
        highlighted: box.highlightedIndex === index
        hoverEnabled: true
        contentItem: Item {
            Symbol {
                anchors.left: parent.left
                anchors.leftMargin: 10
                anchors.verticalCenter: parent.verticalCenter
                name: "checkmark"
                size: 12
                color: Theme.accent
                visible: box.currentIndex === item.index
            }
            Text {
                anchors.left: parent.left
                anchors.leftMargin: 30
                width: parent.width - 36
                anchors.verticalCenter: parent.verticalCenter
                text: item.text
                horizontalAlignment: Text.AlignLeft
                elide: Text.ElideRight
                font.pixelSize: Theme.bodySize
                color: Theme.text
            }
        }
        background: Rectangle {
            radius: Theme.smallRadius - 2
            color: item.highlighted ? Theme.raised : "transparent"
        }
    }
    popup: T.Popup {
        y: box.height + 4
        x: box.mirrored ? 0 : box.width - width
        width: Math.max(box.width, 230)
        height: Math.min(contentItem.implicitHeight + 8, 300)
        margins: 8
        padding: 4
        contentItem: ListView {
            clip: true
            implicitHeight: contentHeight
            model: box.popup.visible ? box.delegateModel : null
            currentIndex: box.highlightedIndex
        }
        background: Rectangle {
            radius: Theme.smallRadius
            color: Theme.surface
            border.color: Theme.edge
        }
    }
}
