pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

/// One tab of the strip.
Pressable {
    id: root

    required property bool isSelected

    implicitWidth: label.implicitWidth + 28
    implicitHeight: 28
    Accessible.role: Accessible.PageTab
    Accessible.selected: root.isSelected

    background: Rectangle {
        radius: Theme.cornerRadius
        color: root.isSelected ? Theme.white(0.12) : root.hovered ? Theme.white(0.06) : Theme.clear
    }

    contentItem: Label {
        id: label

        text: root.title
        size: 13
        color: root.isSelected ? Theme.textPrimary : Theme.textSecondary
        horizontalAlignment: Text.AlignHCenter
    }
}
