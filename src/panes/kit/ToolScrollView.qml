pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
import Klarvik.Kit

Flickable {
    id: root

    default property alias content: column.data
    property alias spacing: column.spacing

    anchors.fill: parent
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    contentHeight: column.height
    T.ScrollBar.vertical: KitScrollBar {}

    // Scrolls so that the item with keyboard focus is visible.
    readonly property Item focused: root.Window.activeFocusItem
    onFocusedChanged: root.bringIntoSight(root.focused)

    function holds(item: Item): bool {
        while (item && item !== column)
            item = item.parent;
        return item === column;
    }

    function bringIntoSight(item: Item) {
        if (!root.holds(item))
            return;
        const margin = 12;
        const top = item.mapToItem(column, 0, 0).y - margin;
        const bottom = top + item.height + 2 * margin;
        if (top < root.contentY)
            root.contentY = Math.max(-root.topMargin, top);
        else if (bottom > root.contentY + root.height)
            root.contentY = Math.min(bottom - root.height, root.contentHeight + root.bottomMargin - root.height);
    }

    Column {
        id: column
        width: root.width
    }
}
