pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Pressable {
    id: root

    required property string symbol
    property real size: 13
    property color color: Theme.textMuted
    property color hoverColor: Theme.textPrimary
    property real slot: Math.round(root.size * 2)
    property bool isEnabled: true

    pressableEnabled: root.isEnabled
    ringGap: 0
    implicitWidth: root.slot
    implicitHeight: root.slot

    background: Rectangle {
        radius: Theme.cornerRadius
        color: root.down ? Theme.white(0.1) : root.hovered ? Theme.white(0.06) : Theme.clear
    }

    contentItem: Symbol {
        name: root.symbol
        size: root.size
        color: root.hovered ? root.hoverColor : root.color
        opacity: root.isEnabled ? 1.0 : 0.4
    }
}
