pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Duplicates

/// A group of equal files, or one of its copies.
Item {
    id: root

    required property int index
    required property bool isGroup
    required property string name
    required property string folder
    required property string path
    required property url url
    required property int selection
    required property bool canToggle
    required property int fate
    required property string menuEntry
    required property string copies
    required property string each
    required property string reclaimable
    required property bool isExpanded
    required property string description

    property bool isMarked: false
    /// A row that is kept for later use is not there, for a screen reader neither.
    property bool isPooled: false

    signal pressed
    signal activated
    signal toggled
    signal kept

    function openMenu() {
        if (!isGroup)
            menu.popup(Theme.sidePadding + TableMetrics.copyIndent, height / 2);
    }

    implicitHeight: isGroup ? TableMetrics.groupHeight : TableMetrics.copyHeight
    ListView.onPooled: isPooled = true
    ListView.onReused: isPooled = false
    visible: !isPooled
    Accessible.role: isGroup ? Accessible.TreeItem : Accessible.CheckBox
    Accessible.name: description
    Accessible.focusable: true
    Accessible.checkable: canToggle
    Accessible.checked: selection === SelectionState.All
    Accessible.onPressAction: activated()
    Accessible.onToggleAction: toggled()

    Rectangle {
        anchors.fill: parent
        color: Theme.white(hover.hovered ? 0.03 : root.isGroup ? 0 : 0.02)
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        onTapped: {
            root.pressed();
            root.activated();
        }
    }

    ContextMenu {
        id: menu
        visible: !root.isGroup
        entries: [root.menuEntry]
        onChosen: root.kept()
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.sidePadding + (root.isGroup ? 0 : TableMetrics.copyIndent)
        anchors.rightMargin: Theme.sidePadding
        spacing: Theme.partSpacing

        Item {
            implicitWidth: 16
            implicitHeight: 16

            SelectionBox {
                visible: root.canToggle
                size: 16
                selection: root.selection
                label: root.name
                activeFocusOnTab: false
                onToggled: {
                    root.pressed();
                    root.toggled();
                }
            }
        }

        Symbol {
            Layout.preferredWidth: 14
            visible: root.isGroup
            name: root.isExpanded ? "chevron.down" : "chevron.right"
            size: 10
            color: Theme.textTertiary
        }

        FateTag {
            Layout.preferredWidth: width
            visible: !root.isGroup
            fate: root.fate
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 1

            ElidedText {
                Layout.fillWidth: true
                text: root.name
                fullText: root.path
                horizontalAlignment: Text.AlignLeft
                font: root.isGroup ? Theme.groupTitle : Theme.font(12, Font.Normal)
            }

            ElidedText {
                Layout.fillWidth: true
                visible: !root.isGroup
                text: root.folder
                fullText: root.path
                horizontalAlignment: Text.AlignLeft
                size: 10.5
                color: Theme.textTertiary
            }
        }

        RevealButton {
            visible: !root.isGroup
            activeFocusOnTab: root.ListView.isCurrentItem
            url: root.url
        }

        Figure {
            Layout.preferredWidth: TableMetrics.copiesWidth
            visible: root.isGroup
            text: root.copies
        }

        Figure {
            Layout.preferredWidth: TableMetrics.eachWidth
            visible: root.isGroup
            text: root.each
        }

        Figure {
            Layout.preferredWidth: TableMetrics.reclaimableWidth
            visible: root.isGroup
            text: root.reclaimable
            isStrong: true
        }
    }

    Separator {
        anchors.bottom: parent.bottom
    }

    FocusRing {
        shown: root.isMarked
        gap: -3
    }
}
