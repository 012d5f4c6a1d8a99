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
    // The row that opens and closes the one given; itself, or one above it.
    property var groupOf: row => row
    // Return, or a press on the row.
    signal activated(int row)
    // Space, or a press on the box in the row.
    signal toggled(int row)
    // The row that was activated last, until rows come below it.
    property int pressedRow: -1

    function takePress(row: int) {
        root.currentIndex = row;
        // The row, and not a button in it that had the focus before.
        if (root.pressTakesFocus)
            root.currentItem.forceActiveFocus(Qt.MouseFocusReason);
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

    // Right opens. Left closes, and goes from a row to the one that it belongs to.
    function setOpen(opens: bool, event: KeyEvent) {
        if (!root.isPress(event))
            return;
        const row = root.currentItem as RowFrame;
        if (row?.canExpand && row.isOpen !== opens)
            root.activated(root.currentIndex);
        else if (!opens)
            root.currentIndex = root.groupOf(root.currentIndex);
    }

    // What was seen below a row that opens gives way to what it shows: those rows come as others
    // that come all at once.
    function fillAgainBelow(row: Item) {
        if (row)
            root.filledHeight = Math.min(root.filledHeight, row.y + row.height - root.contentY + Measures.rowHeight);
    }

    onActivated: row => root.pressedRow = row
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
    Keys.onLeftPressed: event => root.setOpen(false, event)
    Keys.onRightPressed: event => root.setOpen(true, event)
    Keys.onSpacePressed: event => root.toggleCurrent(event)
    Keys.onReturnPressed: event => root.activateCurrent(event)
    Keys.onEnterPressed: event => root.activateCurrent(event)

    Connections {
        target: typeof root.model === "object" ? root.model : null
        ignoreUnknownSignals: true

        function onRowsInserted(parent: var, first: int, last: int) {
            if (first !== root.pressedRow + 1)
                return;
            root.pressedRow = -1;
            if ((last - first) * Measures.rowHeight > root.filledAtOnce)
                root.fillAgainBelow(root.itemAtIndex(first - 1));
        }
    }
}
