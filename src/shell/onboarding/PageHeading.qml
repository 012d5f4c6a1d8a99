pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

/// What every page of the first run begins with: a picture, a title and what it is about.
Column {
    id: root

    required property string title
    required property string text
    default property alias art: slot.data

    spacing: 0

    Item {
        id: slot

        width: root.width
        height: 96
    }

    Item {
        width: 1
        height: 22
    }

    Label {
        width: root.width
        text: root.title
        size: 22
        weight: Font.DemiBold
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.Heading
        Accessible.name: root.title
    }

    Item {
        width: 1
        height: 10
    }

    PageText {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(root.width, 400)
        text: root.text
        size: 13.5
        color: Theme.textSecondary
        horizontalAlignment: Text.AlignHCenter
    }

    /// Text of the first run that takes as many lines as it needs.
    component PageText: Label {
        wrapMode: Text.Wrap
        maximumLineCount: 8
        elide: Text.ElideNone
        lineHeight: 1.25
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
