pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Shapes
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

    Item {
        anchors.fill: parent
        rotation: root.turn % 360

        Repeater {
            model: root.steps

            Shape {
                id: piece

                required property int index
                readonly property real length: 150 / root.steps

                anchors.fill: parent
                opacity: Math.pow((piece.index + 1) / root.steps, 1.6)

                ShapePath {
                    strokeColor: Theme.accent
                    strokeWidth: root.stroke
                    fillColor: Theme.clear
                    capStyle: piece.index === root.steps - 1 ? ShapePath.RoundCap : ShapePath.FlatCap

                    PathAngleArc {
                        centerX: root.size / 2
                        centerY: root.size / 2
                        radiusX: (root.size - root.stroke) / 2
                        radiusY: radiusX
                        startAngle: -240 + piece.index * piece.length
                        sweepAngle: piece.length
                    }
                }
            }
        }
    }
}
