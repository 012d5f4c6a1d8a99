pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit

Rectangle {
    id: root

    property list<ColumnSpec> columns

    implicitHeight: titles.implicitHeight + 16
    color: Theme.hairlineFaint

    RowLayout {
        id: titles
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: Measures.side(root.width)
        anchors.rightMargin: Measures.side(root.width)
        spacing: Theme.partSpacing

        Repeater {
            model: root.columns

            Label {
                required property ColumnSpec modelData

                text: modelData.title
                size: 11
                weight: Font.DemiBold
                tracking: 0.3
                color: Theme.textTertiary
                horizontalAlignment: modelData.alignment
                Layout.fillWidth: modelData.width < 0
                Layout.minimumWidth: Math.max(0, modelData.width)
                Layout.preferredWidth: modelData.width
                Layout.maximumWidth: modelData.width < 0 ? Infinity : modelData.width
            }
        }
    }

    Separator { anchors.top: parent.top }
    Separator { anchors.bottom: parent.bottom }
}
