pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Rectangle {
    id: root

    required property real value

    readonly property real held: Math.max(0, Math.min(1, root.value))

    implicitWidth: 220
    implicitHeight: 4
    radius: height / 2
    color: Theme.white(0.1)
    Accessible.role: Accessible.ProgressBar
    Accessible.name: Math.round(root.held * 100) + "%"

    Rectangle {
        width: root.held > 0 ? Math.max(parent.height, parent.width * root.held) : 0
        height: parent.height
        radius: height / 2
        color: Theme.accent
    }
}
