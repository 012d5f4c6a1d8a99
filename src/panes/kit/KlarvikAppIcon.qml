pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Rectangle {
    id: root

    required property real size

    implicitWidth: root.size
    implicitHeight: root.size
    radius: root.size * 0.225
    antialiasing: true
    border.width: Math.max(1, root.size / 128)
    border.color: Theme.white(0.1)
    gradient: Gradient {
        GradientStop { position: 0; color: Theme.iconTop }
        GradientStop { position: 1; color: Theme.iconBottom }
    }
    Accessible.role: Accessible.Graphic
    Accessible.name: "Klarvik"

    KlarvikMark {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: root.size * 0.015
        size: root.size * 0.64
    }
}
