pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Pressable {
    id: root

    required property int selection
    required property real size
    property string label
    property bool canToggle: true
    signal toggled()

    readonly property bool isFilled: root.selection !== SelectionState.None

    title: root.label
    tapMargin: 6
    pressableEnabled: root.canToggle
    implicitWidth: root.size
    implicitHeight: root.size
    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: root.selection === SelectionState.All
    Accessible.checkStateMixed: root.selection === SelectionState.Partial
    Accessible.onToggleAction: {
        if (root.enabled)
            root.action();
    }
    onAction: root.toggled()

    background: Rectangle {
        radius: root.size * 0.25
        color: root.isFilled ? Theme.accent : root.hovered ? Theme.white(0.06) : Theme.clear
        border.width: root.isFilled ? 0 : 1.5
        border.color: Theme.white(0.35)
        opacity: root.down ? 0.7 : root.canToggle ? 1.0 : 0.4
    }

    contentItem: Symbol {
        name: Kit.selectionSymbol(root.selection)
        size: root.size * 0.62
        color: Theme.onAccent
        visible: root.isFilled
    }
}
