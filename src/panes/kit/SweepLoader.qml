pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

// A beam that goes round a platter, and the tracks it has just read fading behind it.
Item {
    id: root

    required property real size
    readonly property real turn: time.seconds / 1.6 * 360
    readonly property int steps: 9
    readonly property real stroke: Math.max(1.5, root.size * 0.07)

    implicitWidth: root.size
    implicitHeight: root.size
    Accessible.role: Accessible.Animation
    Accessible.name: qsTr("Working")

    LoaderTime {
        id: time
        owner: root
    }

    Rectangle {
        anchors.fill: parent
        radius: root.size / 2
        color: Theme.clear
        border.width: root.stroke
        border.color: Theme.white(0.09)
    }

    Rectangle {
        anchors.centerIn: parent
        width: root.size * 0.2
        height: width
        radius: width / 2
        color: Theme.white(0.14)
    }

    Repeater {
        model: root.steps

        Arc {
            required property int index
            readonly property real length: 150 / root.steps

            anchors.fill: parent
            opacity: Math.pow((index + 1) / root.steps, 1.6)
            color: Theme.accent
            thickness: root.stroke
            hasRoundEnds: index === root.steps - 1
            startAngle: root.turn % 360 - 240 + index * length
            sweepAngle: length
        }
    }
}
