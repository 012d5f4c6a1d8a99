pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Rectangle {
    id: root

    required property bool shown
    property real gap: 2

    anchors.fill: parent
    anchors.margins: -root.gap
    visible: root.shown
    radius: Theme.cornerRadius + root.gap
    color: Theme.clear
    border.width: 2
    border.color: Theme.accent
    opacity: 0.9
}
