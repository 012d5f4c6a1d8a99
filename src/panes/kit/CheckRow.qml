pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Pressable {
    id: root

    required property bool isOn
    signal toggled()

    implicitWidth: box.width + 8 + label.implicitWidth
    implicitHeight: Math.max(20, label.implicitHeight)
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: root.isOn
    Accessible.onToggleAction: {
        if (root.enabled)
            root.action();
    }
    onAction: root.toggled()

    contentItem: Item {
        Rectangle {
            id: box
            anchors.verticalCenter: parent.verticalCenter
            width: 16
            height: 16
            radius: 4
            color: root.isOn ? Theme.accent : root.hovered ? Theme.white(0.06) : Theme.clear
            border.width: root.isOn ? 0 : 1.5
            border.color: Theme.white(0.35)
            opacity: root.down ? 0.7 : 1.0

            Symbol {
                anchors.centerIn: parent
                name: "checkmark"
                size: 10
                color: Theme.onAccent
                visible: root.isOn
            }
        }

        Label {
            id: label
            anchors.left: box.right
            anchors.leftMargin: 8
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: root.title
            opacity: root.enabled ? 1.0 : 0.5
        }
    }
}
