pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

// A raised panel, as high as what stands in it.
Rectangle {
    id: root

    property real sidePadding: 18
    property real verticalPadding: 6
    property alias spacing: inside.spacing
    default property alias content: inside.data

    implicitHeight: inside.implicitHeight + 2 * root.verticalPadding
    radius: 10
    color: Theme.raised
    border.color: Theme.hairline

    Column {
        id: inside
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: root.sidePadding
        anchors.rightMargin: root.sidePadding
    }
}
