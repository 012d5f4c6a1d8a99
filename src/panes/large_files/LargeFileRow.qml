pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.LargeFiles

/// One file: its name above its folder, and what there is to know of it.
RowFrame {
    id: root

    required index
    required property string name
    required property string folder
    required property string path
    required property url url
    required property string kind
    required property string lastOpened
    required property string size
    required property bool isSelected
    required description

    tint: isSelected ? 0.06 : hovered ? 0.03 : 0
    implicitHeight: TableMetrics.rowHeight
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: isSelected

    SelectionBox {
        size: 16
        selection: root.isSelected ? SelectionState.All : SelectionState.None
        label: root.name
        activeFocusOnTab: false
        onToggled: root.pressBox()
    }

    ColumnLayout {
        Layout.fillWidth: true
        spacing: 1

        ElidedText {
            Layout.fillWidth: true
            text: root.name
            fullText: root.path
            size: 12
        }

        ElidedText {
            Layout.fillWidth: true
            text: root.folder
            fullText: root.path
            size: 10.5
            color: Theme.textTertiary
        }
    }

    RevealButton {
        activeFocusOnTab: root.ListView.isCurrentItem
        url: root.url
    }

    KitText {
        Layout.preferredWidth: TableMetrics.kindWidth
        text: root.kind
        size: 12
        color: Theme.textSecondary
    }

    KitText {
        Layout.preferredWidth: TableMetrics.lastOpenedWidth
        text: root.lastOpened
        size: 12
        color: Theme.textSecondary
    }

    Figure {
        Layout.preferredWidth: TableMetrics.sizeWidth
        text: root.size
        isStrong: true
    }
}
