pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

/// What a setting is about on the left, and the setting on the right.
Item {
    id: root

    required property string label
    default property alias content: column.data

    implicitHeight: column.height
    Accessible.role: Accessible.Grouping
    Accessible.name: root.label

    Label {
        id: name

        width: 120
        height: 20
        text: root.label
        color: Theme.textSecondary
        horizontalAlignment: Text.AlignRight
    }

    Column {
        id: column

        anchors.left: name.right
        anchors.leftMargin: 16
        anchors.right: parent.right
        spacing: 4
    }
}
