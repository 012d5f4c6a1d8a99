pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Pressable {
    id: root

    property real size: 12
    property color color: Theme.accent
    property bool isEnabled: true

    pressableEnabled: root.isEnabled
    implicitWidth: label.implicitWidth
    implicitHeight: label.implicitHeight + 4

    contentItem: Label {
        id: label
        text: root.title
        size: root.size
        color: root.color
        opacity: !root.isEnabled ? 0.4 : root.down ? 0.6 : root.hovered ? 0.8 : 1.0
    }
}
