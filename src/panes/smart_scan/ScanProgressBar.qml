import QtQuick
import Klarvik.Kit

/// How far the scan is, with a light moving through it while a category is being measured.
Rectangle {
    id: root

    property real progress: 0
    property bool isMeasuring: false
    property real sweep

    readonly property bool moves: isMeasuring && visible && !Kit.reduceMotion

    implicitHeight: 6
    radius: 3
    color: Theme.white(0.08)
    Accessible.role: Accessible.ProgressBar
    Accessible.name: qsTr("Scan progress") + ", " + Math.floor(root.progress * 100) + "%"

    Rectangle {
        id: fill

        width: Math.max(root.height, parent.width * Math.max(0, Math.min(1, root.progress)))
        height: parent.height
        radius: parent.radius
        color: Theme.accent
        clip: true

        Behavior on width {
            enabled: root.visible && !Kit.reduceMotion
            SmoothedAnimation {
                velocity: -1
                duration: 240
            }
        }

        Rectangle {
            visible: delay.raised
            x: -width + (fill.width + width) * root.sweep
            width: 90
            height: fill.height
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: Theme.clear }
                GradientStop { position: 0.5; color: Theme.white(0.45) }
                GradientStop { position: 1; color: Theme.clear }
            }
        }
    }

    DelayedFlag {
        id: delay

        running: root.moves
    }

    NumberAnimation on sweep {
        running: root.moves
        loops: Animation.Infinite
        from: 0
        to: 1
        duration: 1600
    }
}
