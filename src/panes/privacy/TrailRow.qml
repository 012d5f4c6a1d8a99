pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Panes

/// The heading of a section, or one trail in it.
ToolDetailRow {
    id: root

    required index
    required property int kind
    required pathText
    required property url url
    required property string note
    required property string count
    required property string size
    required property bool isSelected
    required property bool canSelect
    required description

    property bool isLocked: false

    readonly property bool isTrail: kind === TrailListModel.Item

    path: url
    nameSize: 13
    nameWeight: Font.Medium
    tint: isTrail && hovered ? 0.03 : 0
    indent: 0
    showsParts: isTrail
    implicitHeight: isTrail ? Measures.rowHeight : Measures.headingHeight
    Accessible.role: isTrail ? Accessible.CheckBox : Accessible.Heading
    Accessible.checkable: canSelect
    Accessible.checked: isSelected

    whole: SectionHeading {
        visible: !root.isTrail
        anchors.left: parent.left
        anchors.leftMargin: Measures.side(root.width)
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 8
        text: root.name
    }

    leading: SelectionBox {
        size: 16
        selection: root.isSelected ? SelectionState.All : SelectionState.None
        label: root.name
        canToggle: root.canSelect && !root.isLocked
        activeFocusOnTab: false
        onToggled: root.pressBox()
    }

    Label {
        Layout.preferredWidth: Measures.noteWidth
        text: root.note
        size: 12
        color: root.canSelect ? Theme.textSecondary : Theme.review
    }

    NumberCell {
        Layout.preferredWidth: Measures.figures(Measures.countWidth, root.width)
        text: root.count
    }

    NumberCell {
        Layout.preferredWidth: Measures.figures(Measures.sizeWidth, root.width)
        text: root.size
        isStrong: true
    }
}
