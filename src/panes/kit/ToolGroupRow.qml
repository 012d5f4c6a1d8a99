pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit

// A group: its box, its chevron and its title. What stands below it in the same columns is made of
// it too, without a chevron and in a font of its own.
RowFrame {
    id: root

    required property int selection
    required property bool isExpanded
    required property string title
    // What the tooltip of the title says; the title itself, where it is cut, while this is empty.
    property string pathText
    // A second line below the title, where there is one.
    property string note
    property color noteColor: Theme.textTertiary
    property real titleSize: 13
    property int titleWeight: Font.Medium
    property color titleColor: Theme.textPrimary
    property bool showsBox: true
    property bool canToggleSelection: true
    property bool canToggleExpanded: true
    property string selectionHelp
    property alias leading: leadingParts.data
    property bool showsLeading: leadingParts.children.length > 0
    signal toggleSelection()
    signal toggleExpanded()

    description: root.title
    canExpand: root.canToggleExpanded
    isOpen: root.isExpanded
    Accessible.role: Accessible.TreeItem
    onToggled: root.toggleSelection()
    onActivated: {
        if (root.canToggleExpanded)
            root.toggleExpanded();
    }

    SelectionBox {
        visible: root.showsBox
        selection: root.selection
        size: 16
        label: root.title
        help: root.selectionHelp
        canToggle: root.canToggleSelection
        activeFocusOnTab: false
        onToggled: root.pressBox()
    }

    Conditional {
        condition: root.canToggleExpanded

        Symbol {
            Layout.preferredWidth: 14
            name: root.isExpanded ? "chevron.down" : "chevron.right"
            size: 10
            color: Theme.textTertiary
        }
    }

    RowLayout {
        id: leadingParts
        Layout.fillWidth: false
        visible: root.showsLeading
        spacing: root.spacing
    }

    ColumnLayout {
        Layout.fillWidth: true
        spacing: 1

        ElidedText {
            Layout.fillWidth: true
            text: root.title
            fullText: root.pathText
            size: root.titleSize
            weight: root.titleWeight
            color: root.titleColor
        }

        Conditional {
            condition: root.note.length > 0

            ElidedText {
                Layout.fillWidth: true
                text: root.note
                elide: Text.ElideRight
                size: 11
                color: root.noteColor
            }
        }
    }
}
