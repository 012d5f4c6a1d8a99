pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Uninstaller

/// What the opened application has left behind, by category. Arrow keys move through the rows,
/// Space and Return select.
Item {
    id: root

    required property AppUninstallerModel model

    ToolListView {
        id: list

        /// The row that keys act on is marked once keys are used.
        property bool marksCurrentRow: false

        activeFocusOnTab: true
        model: root.model.leftoverList
        highlightMoveDuration: 0
        // A row kept for later use would go on being told to a screen reader.
        reuseItems: false
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Leftovers")

        onActiveFocusChanged: marksCurrentRow = activeFocus
        Keys.onPressed: event => {
            marksCurrentRow = true;
            event.accepted = false;
        }
        Keys.onSpacePressed: root.model.toggleLeftover(currentIndex)
        Keys.onReturnPressed: root.model.toggleLeftover(currentIndex)
        Keys.onEnterPressed: root.model.toggleLeftover(currentIndex)

        delegate: LeftoverRow {
            width: list.width
            canToggle: !root.model.isUninstalling
            isMarked: activeFocus && list.marksCurrentRow
            onPressed: {
                list.currentIndex = index;
                list.forceActiveFocus(Qt.MouseFocusReason);
                list.marksCurrentRow = false;
                root.model.toggleLeftover(index);
            }
        }
    }
}
