pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Uninstaller

/// Every installed application, or those searched for. Arrow keys move through the rows, Return and
/// Space open one.
Item {
    id: root

    required property AppUninstallerModel model

    signal openedByKey

    function takeFocus() {
        list.forceActiveFocus(Qt.OtherFocusReason);
    }

    function openCurrent() {
        if (list.currentIndex < 0)
            return;
        root.model.open(list.currentIndex);
        root.openedByKey();
    }

    ToolListView {
        id: list

        /// The row that keys act on is marked once keys are used.
        property bool marksCurrentRow: false

        activeFocusOnTab: true
        model: root.model.appList
        highlightMoveDuration: 0
        // A row kept for later use would go on being told to a screen reader.
        reuseItems: false
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Installed apps")

        onActiveFocusChanged: marksCurrentRow = activeFocus
        Keys.onPressed: event => {
            marksCurrentRow = true;
            event.accepted = false;
        }
        Keys.onSpacePressed: root.openCurrent()
        Keys.onReturnPressed: root.openCurrent()
        Keys.onEnterPressed: root.openCurrent()

        delegate: AppRow {
            width: list.width
            isMarked: activeFocus && list.marksCurrentRow
            onPressed: {
                list.currentIndex = index;
                root.model.open(index);
            }
        }
    }
}
