import QtQuick
import Klarvik.Kit

/// One tool's line in the strip.
Pressable {
    id: root

    required property int index
    required property string size
    required property string note
    required property string toolHelp

    title: root.size + " " + root.note
    help: root.toolHelp
    implicitWidth: texts.implicitWidth + 24
    implicitHeight: 30

    background: Rectangle {
        radius: Theme.cornerRadius
        color: Theme.white(root.down ? 0.1 : root.hovered ? 0.07 : 0.04)
    }

    contentItem: Item {
        Row {
            id: texts

            anchors.centerIn: parent
            spacing: 5

            MonospacedDigits {
                text: root.size
                size: 13
            }

            Label {
                text: root.note
                color: Theme.textSecondary
            }
        }
    }
}
