pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit

Rectangle {
    id: root

    required property string name
    property url path
    property bool dimmed: false
    property alias leading: leadingParts.data
    default property alias trailing: trailingParts.data

    readonly property bool hasPath: Kit.hasPath(root.path)

    implicitHeight: Math.max(20, parts.implicitHeight) + 16
    width: parent ? parent.width : implicitWidth
    color: Theme.white(0.02)

    RowLayout {
        id: parts
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: 52
        anchors.rightMargin: Theme.sidePadding
        spacing: Theme.partSpacing

        CenteredRow {
            id: leadingParts
            spacing: Theme.partSpacing
            visible: children.length > 0
        }

        ColumnLayout {
            spacing: 1
            Layout.fillWidth: true

            KitText {
                text: root.name
                size: 12
                color: root.dimmed ? Theme.textMuted : Theme.textPrimary
                Layout.fillWidth: true
            }

            KitText {
                objectName: "folderLine"
                text: Kit.folderLine(root.path)
                size: 10.5
                color: Theme.textTertiary
                elide: Text.ElideMiddle
                visible: root.hasPath
                Layout.fillWidth: true
            }
        }

        RevealButton {
            objectName: "revealButton"
            url: root.path
            visible: root.hasPath
        }

        CenteredRow {
            id: trailingParts
            spacing: Theme.partSpacing
        }
    }

    Separator { anchors.bottom: parent.bottom }
}
