pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Rectangle {
    id: root

    property bool sweep: false

    implicitHeight: 2
    implicitWidth: 220
    clip: true
    color: Theme.white(0.08)
    Accessible.role: Accessible.ProgressBar
    Accessible.name: qsTr("Working")
    Component.onCompleted: root.sweep = true

    Rectangle {
        id: block
        width: root.width * 0.3
        height: root.height
        x: root.width * 0.35
        color: Theme.accent

        NumberAnimation on x {
            running: root.sweep && root.visible && root.width > 0 && !Kit.reduceMotion
            from: -0.3 * root.width
            to: root.width
            duration: 1800
            loops: Animation.Infinite
        }
    }
}
