pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Pressable {
    id: root

    property bool isEnabled: true
    property color fill: Theme.accent

    pressableEnabled: root.isEnabled
    isOnAccent: true
    implicitWidth: Math.max(72, label.implicitWidth + 28)
    implicitHeight: 30
    leftPadding: 10
    rightPadding: 10

    background: Rectangle {
        radius: Theme.cornerRadius
        color: root.fill
        opacity: root.isEnabled ? 1.0 : 0.4

        Rectangle {
            anchors.fill: parent
            radius: Theme.cornerRadius
            color: root.down ? Theme.shade(0.18) : Theme.white(0.08)
            visible: root.isEnabled && (root.down || root.hovered)
        }
    }

    contentItem: Label {
        id: label
        text: root.title
        weight: Font.DemiBold
        color: Theme.onAccent
        opacity: root.isEnabled ? 1.0 : 0.85
        horizontalAlignment: Text.AlignHCenter
        elide: Text.ElideMiddle
    }
}
