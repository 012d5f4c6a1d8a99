import QtQuick
import Klarvik.Kit

/// One action: a line with its symbol.
Pressable {
    id: root

    required property string icon
    required property string label

    title: root.label
    implicitHeight: 18 + 2 * 6
    leftPadding: 8
    rightPadding: 8
    ringGap: 0

    background: Rectangle {
        radius: Theme.cornerRadius
        color: Theme.white(root.hovered && root.pressableEnabled ? 0.12 : 0)
    }

    contentItem: Item {
        opacity: root.pressableEnabled ? 1.0 : 0.45

        Symbol {
            id: symbol

            anchors.verticalCenter: parent.verticalCenter
            width: 18
            name: root.icon
            size: 13
            color: Theme.textMuted
        }

        Label {
            anchors.left: symbol.right
            anchors.leftMargin: 8
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: root.label
        }
    }
}
