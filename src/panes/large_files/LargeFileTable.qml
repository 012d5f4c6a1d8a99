pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.LargeFiles

/// The files. Arrow keys, Page Up and Page Down move through them, Space and Return select.
Item {
    id: root

    required property LargeFileFinderModel model

    anchors.fill: parent

    ToolListView {
        id: list

        /// The row that keys act on is marked once keys are used.
        property bool marksCurrentRow: false
        readonly property int firstRow: indexAt(1, contentY)

        function moveBy(rows: int) {
            currentIndex = Math.max(0, Math.min(count - 1, currentIndex + rows));
        }

        function lookAtRows() {
            root.model.rows.lookAt(firstRow, currentIndex);
        }

        activeFocusOnTab: true
        model: root.model.rows
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Large files")

        onFirstRowChanged: lookAtRows()
        onCurrentIndexChanged: lookAtRows()
        onActiveFocusChanged: {
            marksCurrentRow = activeFocus;
            // Who comes back by Tab begins with the row, not with the button in it.
            if (!activeFocus && currentItem)
                currentItem.focus = true;
        }
        Keys.onPressed: event => {
            const page = Math.max(1, Math.floor(height / TableMetrics.rowHeight) - 1);
            const steps = {
                [Qt.Key_PageUp]: -page,
                [Qt.Key_PageDown]: page,
                [Qt.Key_Home]: -count,
                [Qt.Key_End]: count
            };
            marksCurrentRow = true;
            event.accepted = event.key in steps;
            if (event.accepted)
                moveBy(steps[event.key]);
        }
        Keys.onSpacePressed: root.model.toggleSelection(currentIndex)
        Keys.onReturnPressed: root.model.toggleSelection(currentIndex)
        Keys.onEnterPressed: root.model.toggleSelection(currentIndex)

        delegate: LargeFileRow {
            width: list.width
            isMarked: activeFocus && list.marksCurrentRow
            onToggled: root.model.toggleSelection(index)
            onPressed: {
                list.currentIndex = index;
                list.forceActiveFocus(Qt.MouseFocusReason);
                list.marksCurrentRow = false;
            }
        }

        Connections {
            target: root.model

            function onViewChanged() {
                list.positionViewAtBeginning();
            }
        }
    }
}
