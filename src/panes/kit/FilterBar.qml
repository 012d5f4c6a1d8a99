pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Item {
    id: root

    default property alias content: line.data

    implicitHeight: line.implicitHeight + 28
    width: parent ? parent.width : implicitWidth
    implicitWidth: line.implicitWidth + 2 * Theme.sidePadding

    // Items of different heights stand on one middle line.
    CenteredRow {
        id: line
        anchors.left: parent.left
        anchors.leftMargin: Measures.side(root.width)
        anchors.verticalCenter: parent.verticalCenter
        spacing: 10
    }
}
