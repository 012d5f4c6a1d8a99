pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit

// The frame of every row of a RowList: background with a hover tint, the parts on one line, the
// separator below, the focus ring of the current row. Whoever derives from it sets the accessible
// role.
Item {
    id: root

    property int index: -1
    // The row in words, for assistive tools.
    property string description
    // How white the ground is drawn, 0 to 1.
    property real tint: root.hovered ? 0.03 : 0
    property real indent: 0
    property alias spacing: line.spacing
    // Whether rows that belong to it can be shown below it, and are.
    property bool canExpand: false
    property bool isOpen: false
    // Whether a press on the row does anything.
    property bool isPressable: true
    default property alias parts: line.data
    property bool showsParts: true
    // What has the whole row for itself, below the parts or instead of them.
    property alias whole: ground.data

    readonly property RowList list: root.ListView.view as RowList
    readonly property alias hovered: hover.hovered
    readonly property bool isMarked: root.activeFocus && root.list !== null && Kit.usesKeys
    property bool isPooled: false
    // Also told to the list, as are presses of keys.
    signal activated()
    signal toggled()

    function takePress() {
        if (root.list)
            root.list.takePress(root.index);
    }

    // For the box in the row.
    function pressBox() {
        root.takePress();
        root.toggled();
    }

    width: parent ? parent.width : implicitWidth
    implicitHeight: Measures.rowHeight
    // A row that is kept for later use is not there, for a screen reader neither.
    visible: !root.isPooled
    ListView.onPooled: root.isPooled = true
    ListView.onReused: root.isPooled = false
    Accessible.name: root.description
    Accessible.focusable: root.isPressable
    Accessible.onPressAction: {
        if (root.enabled && root.visible)
            root.activated();
    }
    Accessible.onToggleAction: {
        if (root.enabled && root.visible)
            root.toggled();
    }
    onActivated: {
        if (root.list)
            root.list.activated(root.index);
    }
    onToggled: {
        if (root.list)
            root.list.toggled(root.index);
    }

    Rectangle {
        id: ground
        anchors.fill: parent
        color: Theme.white(root.tint)
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        enabled: root.isPressable
        onTapped: {
            root.takePress();
            root.activated();
        }
    }

    RowLayout {
        id: line
        anchors.fill: parent
        anchors.leftMargin: Measures.side(root.width) + root.indent
        anchors.rightMargin: Measures.side(root.width)
        visible: root.showsParts
        spacing: Theme.partSpacing
    }

    Separator {
        anchors.bottom: parent.bottom
    }

    FocusRing {
        shown: root.isMarked
        gap: -3
    }
}
