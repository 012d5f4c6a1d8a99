pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.SystemData

/// The chart, and below it what was found. Arrow keys move through the rows, Space selects, Return
/// opens and closes.
ToolListView {
    id: root

    required property SystemDataModel pane

    /// The row that keys act on is marked once keys are used.
    property bool marksCurrentRow: false

    activeFocusOnTab: true
    model: root.pane.table
    highlightMoveDuration: 0
    // A row kept for later use would go on being told to a screen reader.
    reuseItems: false
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Kinds of System Data")

    onActiveFocusChanged: marksCurrentRow = activeFocus
    Keys.onPressed: event => {
        marksCurrentRow = true;
        event.accepted = false;
    }
    Keys.onSpacePressed: root.pane.table.toggleSelection(currentIndex)
    Keys.onReturnPressed: root.pane.table.activate(currentIndex)
    Keys.onEnterPressed: root.pane.table.activate(currentIndex)

    header: SystemDataSummary {
        width: root.width
        model: root.pane
    }

    delegate: SystemDataRow {
        width: root.width
        model: root.pane
        isMarked: activeFocus && root.marksCurrentRow
        onPressed: {
            root.currentIndex = index;
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.marksCurrentRow = false;
        }
    }

    remove: Transition {
        enabled: !Kit.reduceMotion
        NumberAnimation {
            property: "opacity"
            to: 0
            duration: 280
            easing.type: Easing.OutCubic
        }
    }

    removeDisplaced: Transition {
        enabled: !Kit.reduceMotion
        NumberAnimation {
            property: "y"
            duration: 280
            easing.type: Easing.OutCubic
        }
    }
}
