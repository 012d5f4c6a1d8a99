pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

// A list that answers the keyboard. Its rows are made of RowFrame, which brings the pointer and
// assistive tools to the same two signals.
ToolListView {
    id: root

    required property string name
    // Whether the keyboard follows a press on a row.
    property bool pressTakesFocus: true
    // Return, or a press on the row.
    signal activated(int row)
    // Space, or a press on the box in the row.
    signal toggled(int row)

    function takePress(row: int) {
        root.currentIndex = row;
        if (root.pressTakesFocus)
            root.forceActiveFocus(Qt.MouseFocusReason);
    }

    // A key that is held is one press.
    function isPress(event: KeyEvent): bool {
        return root.visible && root.currentIndex >= 0 && !event.isAutoRepeat;
    }

    function activateCurrent(event: KeyEvent) {
        if (root.isPress(event))
            root.activated(root.currentIndex);
    }

    function toggleCurrent(event: KeyEvent) {
        if (root.isPress(event))
            root.toggled(root.currentIndex);
    }

    activeFocusOnTab: true
    highlightMoveDuration: 0
    Accessible.role: Accessible.List
    Accessible.name: root.name

    onActiveFocusChanged: {
        // Who comes back by Tab begins with the row, not with the button in it.
        if (!root.activeFocus && root.currentItem)
            root.currentItem.focus = true;
    }
    Keys.onPressed: event => {
        const row = Kit.rowReachedBy(event.key, root.currentIndex, root.count, Math.floor(root.height / Measures.rowHeight));
        event.accepted = row >= 0;
        if (event.accepted)
            root.currentIndex = row;
    }
    Keys.onSpacePressed: event => root.toggleCurrent(event)
    Keys.onReturnPressed: event => root.activateCurrent(event)
    Keys.onEnterPressed: event => root.activateCurrent(event)
}
