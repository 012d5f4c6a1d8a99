pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit

/// A group of equal files, or one of its copies.
ToolDetailRow {
    id: root

    required index
    required property bool isGroup
    required folder
    required pathText
    required property url url
    required property int selection
    required property bool canToggle
    required property int fate
    required property string date
    required property string menuEntry
    required property string copies
    required property string each
    required property string reclaimable
    required property bool isExpanded
    required description

    signal kept

    function openMenu() {
        if (!isGroup)
            menu.popup(Measures.side(root.width) + indent, height / 2);
    }

    canExpand: isGroup
    isOpen: isExpanded
    path: url
    nameSize: isGroup ? 13 : 12
    nameWeight: isGroup ? Font.Medium : Font.Normal
    tint: hovered ? 0.03 : isGroup ? 0 : 0.02
    indent: isGroup ? 0 : Measures.indent
    Accessible.role: isGroup ? Accessible.TreeItem : Accessible.CheckBox
    Accessible.checkable: canToggle
    Accessible.checked: selection === SelectionState.All
    Accessible.checkStateMixed: selection === SelectionState.Partial

    whole: ContextMenu {
        id: menu
        visible: !root.isGroup
        entries: [root.menuEntry]
        onOpening: root.takePress()
        onChosen: root.kept()
    }

    leading: [
        Item {
            implicitWidth: 16
            implicitHeight: 16

            SelectionBox {
                visible: root.canToggle
                size: 16
                selection: root.selection
                label: root.name
                activeFocusOnTab: false
                onToggled: root.pressBox()
            }
        },
        Symbol {
            Layout.preferredWidth: 14
            visible: root.isGroup
            name: root.isExpanded ? "chevron.down" : "chevron.right"
            size: 10
            color: Theme.textTertiary
        },
        KeepDeleteBadge {
            Layout.preferredWidth: width
            visible: !root.isGroup
            fate: root.fate
        }
    ]

    // When the copy was last changed, which the rule for what stays looks at.
    Label {
        Layout.preferredWidth: Measures.countWidth + Theme.partSpacing + Measures.sizeWidth
        visible: !root.isGroup
        text: root.date
        size: 12
        color: Theme.textTertiary
        horizontalAlignment: Text.AlignRight
    }

    Item {
        Layout.preferredWidth: Measures.sizeWidth
        Layout.fillHeight: true
        visible: !root.isGroup

        TextButton {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: root.canToggle
            title: qsTr("Keep this")
            help: root.menuEntry
            activeFocusOnTab: root.ListView.isCurrentItem
            onAction: {
                root.takePress();
                root.kept();
            }
        }
    }

    NumberCell {
        Layout.preferredWidth: Measures.countWidth
        visible: root.isGroup
        text: root.copies
    }

    NumberCell {
        Layout.preferredWidth: Measures.sizeWidth
        visible: root.isGroup
        text: root.each
    }

    NumberCell {
        Layout.preferredWidth: Measures.sizeWidth
        visible: root.isGroup
        text: root.reclaimable
        isStrong: true
    }

    /// The entries of a row, opened by the secondary button, or by the Menu key where its owner asks.
    component ContextMenu: Item {
        id: contextMenu

        required property list<string> entries
        // Before the menu is there.
        signal opening()
        signal chosen(int index)

        function popup(x: real, y: real) {
            contextMenu.opening();
            entriesMenu.x = x;
            entriesMenu.y = y;
            entriesMenu.open();
        }

        anchors.fill: parent

        TapHandler {
            acceptedButtons: Qt.RightButton
            gesturePolicy: TapHandler.WithinBounds
            onTapped: eventPoint => contextMenu.popup(eventPoint.position.x, eventPoint.position.y)
        }

        MenuPopup {
            id: entriesMenu

            entries: contextMenu.entries
            onChosen: index => contextMenu.chosen(index)
        }
    }
}
