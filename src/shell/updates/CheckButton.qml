pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

/// Starts a check, and shows that one runs.
Pressable {
    id: root

    required property bool isBusy

    pressableEnabled: !root.isBusy
    implicitWidth: label.implicitWidth + 24
    implicitHeight: 28

    background: Rectangle {
        radius: Theme.cornerRadius
        color: root.down ? Theme.white(0.16) : root.hovered ? Theme.white(0.12) : Theme.white(0.08)
        opacity: root.isBusy ? 0.5 : 1.0
    }

    contentItem: Item {
        Row {
            id: label

            anchors.centerIn: parent
            spacing: 6

            Item {
                anchors.verticalCenter: parent.verticalCenter
                width: 12
                height: 12

                Symbol {
                    anchors.centerIn: parent
                    visible: !root.isBusy
                    name: "arrow.clockwise"
                    size: 10
                }

                InlineLoader {
                    anchors.centerIn: parent
                    visible: root.isBusy
                    size: 18
                    scale: 0.65
                    tint: Theme.textSecondary
                }
            }

            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: root.title
                opacity: root.isBusy ? 0.5 : 1.0
            }
        }
    }
}
