pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.SmartScan

/// What a scan found. Arrow keys move through the rows, Space selects, Return opens, closes or
/// shows the rest.
ColumnLayout {
    id: root

    required property ReviewTableModel model

    spacing: 0

    TableHeader {
        Layout.fillWidth: true
        title: qsTr("CATEGORY")
    }

    Item {
        Layout.fillWidth: true
        Layout.fillHeight: true

        ToolListView {
            id: list

            /// The row that keys act on is marked once keys are used.
            property bool marksCurrentRow: false

            activeFocusOnTab: true
            model: root.model
            highlightMoveDuration: 0
            // A row kept for later use would go on being told to a screen reader.
            reuseItems: false
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Categories found")

            onActiveFocusChanged: marksCurrentRow = activeFocus
            Keys.onPressed: event => {
                marksCurrentRow = true;
                event.accepted = false;
            }
            Keys.onSpacePressed: root.model.toggleSelection(currentIndex)
            Keys.onReturnPressed: root.model.activate(currentIndex)
            Keys.onEnterPressed: root.model.activate(currentIndex)

            delegate: ReviewRow {
                width: list.width
                table: root.model
                isMarked: activeFocus && list.marksCurrentRow
                onPressed: {
                    list.currentIndex = index;
                    list.forceActiveFocus(Qt.MouseFocusReason);
                    list.marksCurrentRow = false;
                }
            }
        }
    }
}
