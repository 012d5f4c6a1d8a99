pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

/// A heading over a raised panel.
Item {
    id: root

    required property string heading
    default property alias content: inside.data

    width: parent ? parent.width : implicitWidth
    implicitHeight: parts.implicitHeight + 24

    Column {
        id: parts

        x: Theme.sidePadding
        width: Math.min(1120, root.width - 2 * Theme.sidePadding)
        spacing: 10

        SectionHeading {
            text: root.heading
        }

        Rectangle {
            width: parent.width
            height: inside.implicitHeight + 36
            radius: 10
            color: Theme.raised
            border.color: Theme.hairline

            Column {
                id: inside

                anchors.left: parent.left
                anchors.right: parent.right
                anchors.top: parent.top
                anchors.margins: 18
                spacing: 14
            }
        }
    }
}
