pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

/// A switch that is on or off.
Pressable {
    id: root

    required property bool isOn
    signal toggled()

    implicitWidth: 36
    implicitHeight: 20
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: root.isOn
    Accessible.onToggleAction: root.action()
    onAction: root.toggled()

    background: Rectangle {
        radius: height / 2
        color: root.isOn ? Theme.accent : root.hovered ? Theme.white(0.2) : Theme.white(0.14)
        opacity: root.down ? 0.7 : 1.0
    }

    contentItem: Item {
        Rectangle {
            width: 16
            height: 16
            radius: 8
            y: 2
            x: root.isOn ? parent.width - width - 2 : 2
            color: Theme.onAccent

            Behavior on x {
                enabled: !Kit.reduceMotion
                NumberAnimation {
                    duration: 120
                }
            }
        }
    }
}
