pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.SmartScan

/// One row of the review: a category, one of its items, or the row that shows the rest.
RowFrame {
    id: root

    required index
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
    required description

    readonly property bool isCategory: kind === ReviewTableModel.Category
    readonly property bool isItem: kind === ReviewTableModel.Item
    readonly property bool isShowMore: kind === ReviewTableModel.ShowMore

    tint: hovered ? 0.03 : isCategory ? 0 : 0.02
    indent: isCategory ? 0 : 26
    implicitHeight: TableMetrics.rowHeight
    Accessible.role: isShowMore ? Accessible.Button : isCategory ? Accessible.TreeItem : Accessible.CheckBox
    Accessible.checkable: !isShowMore
    Accessible.checked: selection === ReviewTableModel.All

    SelectionBox {
        visible: !root.isShowMore
        size: 16
        selection: root.selection
        label: root.name
        activeFocusOnTab: false
        onToggled: root.pressBox()
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
