pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit

// A thing on the disk: its name above its folder, and a button that reveals it. As it stands below
// a group; a list without groups gives it another indent.
RowFrame {
    id: root

    required property string name
    property url path
    property string folder: Kit.folderLine(root.path)
    // What the tooltip says; the text itself, where it is cut, while this is empty.
    property string pathText
    property bool dimmed: false
    property real nameSize: 12
    property int nameWeight: Font.Normal
    property alias leading: leadingParts.data
    property bool showsLeading: leadingParts.children.length > 0

    readonly property bool hasPath: Kit.hasPath(root.path)

    tint: root.hovered ? 0.03 : 0.02
    indent: Measures.indent

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
            text: root.name
            fullText: root.pathText
            size: root.nameSize
            weight: root.nameWeight
            color: root.dimmed ? Theme.textMuted : Theme.textPrimary
        }

        ElidedText {
            objectName: "folderLine"
            Layout.fillWidth: true
            visible: root.hasPath
            text: root.folder
            fullText: root.pathText
            size: 10.5
            color: Theme.textTertiary
        }
    }

    RevealButton {
        objectName: "revealButton"
        visible: root.hasPath
        activeFocusOnTab: root.ListView.isCurrentItem
        url: root.path
    }
}
