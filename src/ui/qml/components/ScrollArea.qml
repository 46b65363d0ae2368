import QtQuick
import QtQuick.Window
import QtQuick.Templates as T
import Veldmark

// A column that scrolls when it is too tall, and follows the keyboard's focus.
Flickable {
    id: area
    default property Item column
    property int margin: 16

    contentWidth: width
    contentHeight: column ? column.implicitHeight + 2 * margin : 0
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    T.ScrollBar.vertical: ScrollBar {}

    onColumnChanged: {
        column.parent = contentItem
        column.x = margin
        column.y = margin
        column.width = Qt.binding(() => area.width - 2 * area.margin)
    }

    readonly property Item focused: Window.activeFocusItem
    onFocusedChanged: {
        let inside = focused
        while (inside && inside !== contentItem)
            inside = inside.parent
        const reason = (focused as T.Control)?.focusReason ?? Qt.OtherFocusReason
        if (!inside || (reason !== Qt.TabFocusReason && reason !== Qt.BacktabFocusReason))
            return
        const top = focused.mapToItem(contentItem, 0, 0).y
        if (top - margin < contentY)
            contentY = Math.max(0, top - margin)
        else if (top + focused.height + margin > contentY + height)
            contentY = Math.min(contentHeight - height, top + focused.height + margin - height)
    }
}
