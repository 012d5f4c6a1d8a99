pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit

/// One file: its name above its folder, and what there is to know of it.
ToolDetailRow {
    id: root

    required index
    required folder
    required pathText
    required property url url
    required property string kind
    required property string lastOpened
    required property string size
    required property bool isSelected
    required description

    path: url
    tint: isSelected ? 0.06 : hovered ? 0.03 : 0
    indent: 0
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: isSelected

    leading: SelectionBox {
        size: 16
        selection: root.isSelected ? SelectionState.All : SelectionState.None
        label: root.name
        activeFocusOnTab: false
        onToggled: root.pressBox()
    }

    Label {
        Layout.preferredWidth: Measures.kindWidth
        text: root.kind
        size: 12
        color: Theme.textSecondary
    }

    Label {
        Layout.preferredWidth: Measures.dateWidth
        text: root.lastOpened
        size: 12
        color: Theme.textSecondary
    }

    NumberCell {
        Layout.preferredWidth: Measures.sizeWidth
        text: root.size
        isStrong: true
    }
}
