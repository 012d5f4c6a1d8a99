pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.SmartScan

/// One row of the review: a category, one of its items, or the row that shows the rest.
Item {
    id: root

    required property int index
    required property int kind
    required property string name
    required property string path
    required property url url
    required property string symbol
    required property int color
    required property int safety
    required property int selection
    required property string items
    required property string size
    required property bool isExpanded
    required property string description

    property ReviewTableModel table
    property bool isMarked: false

    readonly property bool isCategory: kind === ReviewTableModel.Category
    readonly property bool isItem: kind === ReviewTableModel.Item
    readonly property bool isShowMore: kind === ReviewTableModel.ShowMore
    readonly property int indent: isCategory ? 0 : 26

    signal pressed

    implicitHeight: TableMetrics.rowHeight
    Accessible.role: isShowMore ? Accessible.Button : isCategory ? Accessible.TreeItem : Accessible.CheckBox
    Accessible.name: description
    Accessible.focusable: true
    Accessible.checkable: !isShowMore
    Accessible.checked: selection === ReviewTableModel.All
    Accessible.onPressAction: table.activate(index)
    Accessible.onToggleAction: table.toggleSelection(index)

    Rectangle {
        anchors.fill: parent
        color: Theme.white(rowHover.hovered ? 0.03 : root.isCategory ? 0 : 0.02)
    }

    HoverHandler {
        id: rowHover
    }

    TapHandler {
        onTapped: {
            root.pressed();
            root.table.activate(root.index);
        }
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.sidePadding + root.indent
        anchors.rightMargin: Theme.sidePadding
        spacing: TableMetrics.columnSpacing

        SelectionBox {
            visible: !root.isShowMore
            size: 16
            selection: root.selection
            label: root.name
            activeFocusOnTab: false
            onToggled: {
                root.pressed();
                root.table.toggleSelection(root.index);
            }
        }

        Symbol {
            Layout.preferredWidth: 14
            visible: root.isCategory
            name: root.isExpanded ? "chevron.down" : "chevron.right"
            size: 10
            color: Theme.textTertiary
        }

        Symbol {
            Layout.preferredWidth: 20
            visible: !root.isShowMore
            name: root.symbol
            size: root.isCategory ? 16 : 14
            color: root.isCategory ? Theme.systemColor(root.color) : Theme.textTertiary
        }

        ElidedText {
            Layout.fillWidth: true
            text: root.name
            fullText: root.path
            size: root.isCategory ? 13 : 12
            weight: root.isCategory ? Font.Medium : Font.Normal
            color: root.isShowMore ? Theme.accent : Theme.textPrimary
        }

        Item {
            Layout.preferredWidth: TableMetrics.safetyWidth
            Layout.fillHeight: true
            visible: root.isCategory

            SafetyTag {
                anchors.verticalCenter: parent.verticalCenter
                level: root.safety
            }
        }

        Figure {
            Layout.preferredWidth: TableMetrics.itemsWidth
            visible: root.isCategory
            text: root.items
        }

        RevealButton {
            visible: root.isItem
            activeFocusOnTab: root.ListView.isCurrentItem
            url: root.url
        }

        Figure {
            Layout.preferredWidth: TableMetrics.sizeWidth
            visible: !root.isShowMore
            text: root.size
            isStrong: root.isCategory
        }
    }

    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: 1
        color: Theme.hairline
    }

    FocusRing {
        shown: root.isMarked
        gap: -3
    }
}
