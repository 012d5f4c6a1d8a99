pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Duplicates

/// The groups. Arrow keys, Page Up and Page Down move through the rows, Space selects, Return opens
/// and closes a group, the Menu key opens the menu of a copy.
Item {
    id: root

    required property DuplicateFinderModel model

    anchors.fill: parent

    ToolListView {
        id: list

        /// The row that keys act on is marked once keys are used.
        property bool marksCurrentRow: false
        readonly property int firstRow: indexAt(1, contentY)

        function moveBy(rows: int) {
            currentIndex = Math.max(0, Math.min(count - 1, currentIndex + rows));
        }

        activeFocusOnTab: true
        model: root.model.rows
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Groups of equal files")

        onFirstRowChanged: root.model.rows.lookAt(firstRow)
        onActiveFocusChanged: marksCurrentRow = activeFocus
        Keys.onPressed: event => {
            const page = Math.max(1, Math.floor(height / TableMetrics.copyHeight) - 1);
            const steps = {
                [Qt.Key_PageUp]: -page,
                [Qt.Key_PageDown]: page,
                [Qt.Key_Home]: -count,
                [Qt.Key_End]: count
            };
            marksCurrentRow = true;
            event.accepted = event.key in steps || event.key === Qt.Key_Menu;
            if (event.key in steps)
                moveBy(steps[event.key]);
            else if (event.key === Qt.Key_Menu && currentItem)
                (currentItem as DuplicateRow).openMenu();
        }
        Keys.onSpacePressed: root.model.toggleSelection(currentIndex)
        Keys.onReturnPressed: root.model.activate(currentIndex)
        Keys.onEnterPressed: root.model.activate(currentIndex)

        delegate: DuplicateRow {
            width: list.width
            isMarked: activeFocus && list.marksCurrentRow
            onActivated: root.model.activate(index)
            onToggled: root.model.toggleSelection(index)
            onKept: root.model.keepInstead(index)
            onPressed: {
                list.currentIndex = index;
                list.forceActiveFocus(Qt.MouseFocusReason);
                list.marksCurrentRow = false;
            }
        }
    }
}
