pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit

Pressable {
    id: root

    required property int selection
    required property bool isExpanded
    property bool canToggleSelection: true
    property bool canToggleExpanded: true
    property string selectionHelp
    property alias leading: leadingParts.data
    default property alias trailing: trailingParts.data
    signal toggleSelection()
    signal toggleExpanded()

    implicitHeight: Math.max(20, parts.implicitHeight) + 20
    width: parent ? parent.width : implicitWidth
    pressableEnabled: root.canToggleExpanded || root.canToggleSelection
    ringGap: -2
    leftPadding: Theme.sidePadding
    rightPadding: Theme.sidePadding
    onAction: {
        if (root.canToggleExpanded)
            root.toggleExpanded();
    }

    background: Rectangle {
        color: root.hovered ? Theme.white(0.03) : Theme.clear
        Separator { anchors.bottom: parent.bottom }
    }

    contentItem: RowLayout {
        id: parts
        spacing: Theme.partSpacing

        SelectionBox {
            selection: root.selection
            size: 16
            label: root.title
            help: root.selectionHelp
            canToggle: root.canToggleSelection
            onToggled: root.toggleSelection()
        }

        Item {
            implicitWidth: 14
            implicitHeight: 14

            Symbol {
                anchors.centerIn: parent
                name: root.isExpanded ? "chevron.down" : "chevron.right"
                size: 10
                color: Theme.textTertiary
            }
        }

        CenteredRow {
            id: leadingParts
            spacing: Theme.partSpacing
            visible: children.length > 0
        }

        KitText {
            text: root.title
            font: Theme.groupTitle
            Layout.fillWidth: true
        }

        CenteredRow {
            id: trailingParts
            spacing: Theme.partSpacing
        }
    }
}
