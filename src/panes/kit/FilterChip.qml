pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Pressable {
    id: root

    property bool isSelected: false
    property bool isDashed: false
    property bool hasAction: true
    // Before the title.
    property string symbol: root.isSelected && !root.isRemovable ? "checkmark" : ""
    // A press takes it away.
    property bool isRemovable: false

    pressableEnabled: root.hasAction
    // Not asked of the row, which counts nothing while the chip is hidden.
    implicitWidth: Math.ceil(label.width + (mark.name === "" ? 0 : mark.implicitWidth + parts.spacing)
                             + (root.isRemovable ? cross.implicitWidth + parts.spacing : 0)) + 20
    implicitHeight: label.implicitHeight + 8
    Accessible.role: root.hasAction ? Accessible.Button : Accessible.StaticText
    Accessible.checkable: root.hasAction && !root.isDashed && !root.isRemovable
    Accessible.checked: root.isSelected

    background: Rectangle {
        radius: height / 2
        color: root.isDashed ? (root.hovered ? Theme.white(0.04) : Theme.clear)
                             : Theme.white((root.isSelected ? 0.1 : 0.04) + (root.hovered ? 0.03 : 0) + (root.down ? 0.03 : 0))

        DashedCapsule {
            anchors.fill: parent
            visible: root.isDashed
            color: Theme.white(0.25)
        }
    }

    contentItem: Item {
        CenteredRow {
            id: parts
            anchors.centerIn: parent
            spacing: 5

            Symbol {
                id: mark
                visible: name !== ""
                name: root.symbol
                size: 9
                color: Theme.textPrimary
            }

            Label {
                id: label
                width: Math.min(implicitWidth, 220)
                text: root.title
                size: 12
                elide: Text.ElideMiddle
                color: root.isDashed ? Theme.textSecondary : Theme.textPrimary
            }

            Symbol {
                id: cross
                visible: root.isRemovable
                name: "xmark"
                size: 8
                color: root.hovered ? Theme.textPrimary : Theme.textMuted
            }
        }
    }
}
