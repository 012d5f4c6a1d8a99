pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Panes

/// What a scan found. Space selects, Return opens, closes or shows the rest.
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

        RowList {
            name: qsTr("Categories found")
            rowHeight: SmartScanMetrics.rowHeight
            model: root.model
            onActivated: row => root.model.activate(row)
            onToggled: row => root.model.toggleSelection(row)

            delegate: ReviewRow {}
        }
    }
}
