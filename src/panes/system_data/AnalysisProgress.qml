pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

/// How far an analysis is that runs while an earlier one is still shown.
Item {
    id: root

    required property string label
    required property real progress

    width: parent ? parent.width : implicitWidth
    implicitHeight: 34

    ProgressLine {
        id: line

        anchors.left: parent.left
        anchors.leftMargin: Measures.side(root.width)
        anchors.verticalCenter: parent.verticalCenter
        value: root.progress
    }

    Label {
        anchors.left: line.right
        anchors.right: parent.right
        anchors.leftMargin: Theme.partSpacing
        anchors.rightMargin: Measures.side(root.width)
        anchors.verticalCenter: parent.verticalCenter
        text: root.label
        size: 12
        color: Theme.textTertiary
    }
}
