pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.SystemData

/// The chart, and below it what was found. Arrow keys move through the rows, Space selects, Return
/// opens and closes.
ColumnLayout {
    id: root

    required property SystemDataModel pane

    anchors.fill: parent
    spacing: 0

    SystemDataSummary {
        Layout.fillWidth: true
        model: root.pane
    }

    Item {
        Layout.fillWidth: true
        Layout.fillHeight: true

        ToolListView {
            id: list

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

            delegate: SystemDataRow {
                width: list.width
                model: root.pane
                isMarked: activeFocus && list.marksCurrentRow
                onPressed: {
                    list.currentIndex = index;
                    list.forceActiveFocus(Qt.MouseFocusReason);
                    list.marksCurrentRow = false;
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
    }
}
