pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Pressable {
    id: root

    property bool isEnabled: true
    // Leads the title where there is one.
    property string symbol

    pressableEnabled: root.isEnabled
    implicitWidth: Math.max(64, label.implicitWidth + 24)
    implicitHeight: 28

    background: Rectangle {
        radius: Theme.cornerRadius
        color: root.down ? Theme.white(0.1) : root.hovered ? Theme.white(0.05) : Theme.clear
        border.width: 1
        border.color: Theme.white(0.2)
        opacity: root.isEnabled ? 1.0 : 0.5
    }

    contentItem: Item {
        opacity: root.isEnabled ? 1.0 : 0.5

        Row {
            id: label

            anchors.centerIn: parent
            spacing: 6

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                visible: root.symbol !== ""
                name: root.symbol
                size: 12
            }

            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: root.title
            }
        }
    }
}
