import QtQuick
import Klarvik.Kit
import Klarvik.SmartScan

/// The column headings that the tables of this pane share.
ColumnHeader {
    id: root

    required property string title

    columns: [
        ColumnSpec {
            title: root.title
        },
        ColumnSpec {
            title: qsTr("SAFETY")
            width: TableMetrics.safetyWidth
        },
        ColumnSpec {
            title: qsTr("ITEMS")
            width: TableMetrics.itemsWidth
            alignment: Qt.AlignRight
        },
        ColumnSpec {
            title: qsTr("SIZE")
            width: TableMetrics.sizeWidth
            alignment: Qt.AlignRight
        }
    ]
}
