pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

// The mark in one colour: three layers, the top one on its way out.
Item {
    id: root

    required property real size
    property color color: Theme.textPrimary
    readonly property real unit: root.size / 18

    implicitWidth: root.size
    implicitHeight: root.size

    Repeater {
        model: [0.55, 1.0, 1.0]

        Rectangle {
            required property int index
            required property real modelData

            x: 1.5 * root.unit
            y: (2.1 + index * 5.4) * root.unit
            width: 15 * root.unit
            height: 3 * root.unit
            radius: height / 2
            color: root.color
            opacity: modelData
            antialiasing: true
        }
    }
}
