pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Rectangle {
    id: root

    required property bool shown
    property real gap: 2
    // On a ground of the accent colour it would not be seen in that.
    property bool isOnAccent: false

    anchors.fill: parent
    anchors.margins: -root.gap
    visible: root.shown
    radius: Theme.cornerRadius + root.gap
    color: Theme.clear
    border.width: 2
    border.color: root.isOnAccent ? Theme.onAccent : Theme.accent
    opacity: 0.9
}
