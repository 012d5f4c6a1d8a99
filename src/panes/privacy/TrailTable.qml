pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Privacy

/// The trails found, by section. Arrow keys move through the rows, Space and Return select.
Item {
    id: root

    required property PrivacyCleanerModel model

    ToolListView {
        id: list

        /// The row that keys act on is marked once keys are used.
        property bool marksCurrentRow: false

        activeFocusOnTab: true
        model: root.model.trailList
        highlightMoveDuration: 0
        // A row kept for later use would go on being told to a screen reader.
        reuseItems: false
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Trails found")

        onActiveFocusChanged: marksCurrentRow = activeFocus
        Keys.onPressed: event => {
            marksCurrentRow = true;
            event.accepted = false;
        }
        Keys.onSpacePressed: root.model.toggle(currentIndex)
        Keys.onReturnPressed: root.model.toggle(currentIndex)
        Keys.onEnterPressed: root.model.toggle(currentIndex)

        delegate: TrailRow {
            width: list.width
            isLocked: root.model.isCleaning
            isMarked: activeFocus && list.marksCurrentRow
            onPressed: {
                list.currentIndex = index;
                list.forceActiveFocus(Qt.MouseFocusReason);
                list.marksCurrentRow = false;
                root.model.toggle(index);
            }
        }
    }
}
