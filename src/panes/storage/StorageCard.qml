pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

/// A heading over a raised panel.
Item {
    id: root

    required property string heading
    default property alias content: panel.content

    width: parent ? parent.width : implicitWidth
    implicitHeight: parts.implicitHeight + 24

    Column {
        id: parts

        x: Measures.side(root.width)
        width: root.width - 2 * x
        spacing: 10

        SectionHeading {
            text: root.heading
        }

        Panel {
            id: panel

            width: parent.width
            verticalPadding: 18
            spacing: 14
        }
    }
}
