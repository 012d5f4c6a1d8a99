pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit

/// A line of the empty state: what it is about, and a word about it.
RowLayout {
    id: root

    required property string name
    required property string word
    property color wordColor: Theme.textTertiary
    readonly property string description: root.name + ", " + root.word

    Layout.preferredHeight: 38
    spacing: Theme.partSpacing
    Accessible.role: Accessible.ListItem
    Accessible.name: root.description

    Label {
        Layout.fillWidth: true
        text: root.name
    }

    Label {
        text: root.word
        size: 11
        color: root.wordColor
    }
}
