pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Panes

/// The table that grows while a scan runs, below the bar that says how far it is.
ColumnLayout {
    id: root

    required property SmartScanModel model

    spacing: 0

    Label {
        Layout.fillWidth: true
        Layout.leftMargin: Measures.side(root.width)
        Layout.rightMargin: Measures.side(root.width)
        Layout.topMargin: 8
        text: root.model.scanningHeadline
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    ScanProgressBar {
        Layout.fillWidth: true
        Layout.leftMargin: Measures.side(root.width)
        Layout.rightMargin: Measures.side(root.width)
        Layout.topMargin: 10
        Layout.bottomMargin: 18
        progress: root.model.progress
        isMeasuring: root.model.isMeasuring
    }

    TableHeader {
        Layout.fillWidth: true
        title: qsTr("FOUND SO FAR")
    }

    Item {
        Layout.fillWidth: true
        Layout.fillHeight: true

        ToolListView {
            id: list

            model: root.model.scanningTable
            reuseItems: false

            delegate: FoundRow {
                width: list.width
            }
        }
    }
}
