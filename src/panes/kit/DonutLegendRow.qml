pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit

Pressable {
    id: root

    required property donutSlice slice
    required property real share
    property bool isHighlighted: false
    property string subtitle
    property bool canTap: false
    signal hover(bool inside)
    signal tap()

    title: root.slice.label
    activeFocusOnTab: root.canTap
    implicitHeight: parts.implicitHeight + 12
    implicitWidth: parts.implicitWidth + 16
    leftPadding: 8
    rightPadding: 8
    ringGap: 0
    Accessible.role: root.canTap ? Accessible.Button : Accessible.StaticText
    Accessible.name: root.slice.label + " " + Kit.shareText(root.share)
    onHoveredChanged: root.hover(root.hovered)
    onAction: {
        if (root.canTap)
            root.tap();
    }

    background: Rectangle {
        radius: Theme.cornerRadius
        color: root.isHighlighted ? Theme.white(0.05) : Theme.clear
    }

    contentItem: RowLayout {
        id: parts
        spacing: 10

        Rectangle {
            implicitWidth: 14
            implicitHeight: 14
            radius: 5
            color: root.slice.color
        }

        ColumnLayout {
            spacing: 1
            Layout.fillWidth: true

            Label {
                text: root.slice.label
                size: 12
                Layout.fillWidth: true
            }

            Label {
                text: root.subtitle
                size: 10.5
                color: Theme.textTertiary
                visible: text !== ""
                Layout.fillWidth: true
            }
        }

        Item {
            implicitWidth: 68
            implicitHeight: percent.implicitHeight

            MonospacedDigits {
                id: percent
                objectName: "share"
                anchors.right: parent.right
                text: Kit.shareText(root.share)
                size: 12
                color: Theme.textSecondary
            }
        }
    }
}
