import QtQuick
import Klarvik.Kit

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
            width: Measures.safetyWidth
        },
        ColumnSpec {
            title: qsTr("ITEMS")
            width: Measures.countWidth
            alignment: Qt.AlignRight
        },
        ColumnSpec {
            title: qsTr("SIZE")
            width: Measures.sizeWidth
            alignment: Qt.AlignRight
        }
    ]
}
