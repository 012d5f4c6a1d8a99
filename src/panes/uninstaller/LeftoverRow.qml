pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Panes

/// The heading of a category, or one leftover in it.
ToolDetailRow {
    id: root

    required index
    required property int kind
    required pathText
    required property url url
    required property string note
    required property string size
    required property bool isSelected
    required description

    property bool canToggle: true

    readonly property bool isLeftover: kind === LeftoverListModel.Item

    path: url
    nameSize: isLeftover ? 12 : 13
    nameWeight: isLeftover ? Font.Normal : Font.Medium
    showsLeading: isLeftover
    tint: !isLeftover ? 0 : hovered ? 0.04 : 0.02
    indent: isLeftover ? Measures.indent : 0
    Accessible.role: isLeftover ? Accessible.CheckBox : Accessible.Heading
    Accessible.checkable: isLeftover
    Accessible.checked: isSelected

    leading: SelectionBox {
        size: 16
        selection: root.isSelected ? SelectionState.All : SelectionState.None
        label: root.name
        canToggle: root.canToggle
        activeFocusOnTab: false
        onToggled: root.pressBox()
    }

    Label {
        Layout.preferredWidth: Measures.noteWidth
        text: root.isLeftover ? "" : root.note
        size: 12
        color: Theme.textSecondary
    }

    NumberCell {
        Layout.preferredWidth: Measures.sizeWidth
        text: root.size
        isStrong: !root.isLeftover
    }
}
