pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.SystemData

/// What the last removal moved, and whether its space is back.
Item {
    id: root

    required property SystemDataModel model

    width: parent ? parent.width : implicitWidth
    implicitHeight: content.implicitHeight + 24 + 14
    Accessible.role: Accessible.Notification
    Accessible.name: root.model.bannerHeadline

    Rectangle {
        anchors.fill: content
        anchors.margins: -12
        anchors.leftMargin: -16
        radius: 10
        color: Theme.raised
        border.color: Theme.hairlineStrong
    }

    HoverHandler {
        id: over
    }

    KitToolTip {
        x: Theme.sidePadding
        shown: over.hovered
        text: root.model.bannerHelp
    }

    RowLayout {
        id: content

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.topMargin: 12
        anchors.leftMargin: Theme.sidePadding + 16
        anchors.rightMargin: Theme.sidePadding + 12
        spacing: 12

        Symbol {
            name: root.model.trashHoldsIt ? "trash.fill" : "checkmark.circle.fill"
            size: 22
            color: root.model.trashHoldsIt ? Theme.textMuted : Theme.safe
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 3

            KitText {
                Layout.fillWidth: true
                text: root.model.bannerHeadline
                weight: Font.Medium
            }

            KitText {
                Layout.fillWidth: true
                text: root.model.bannerDetail
                color: Theme.textSecondary
                size: 12
            }
        }

        SecondaryButton {
            visible: root.model.trashHoldsIt
            isEnabled: root.model.canEmptyTrash
            title: qsTr("Empty Trash")
            onAction: root.model.emptyTrash()
        }
    }
}
