pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Klarvik.Kit

T.ScrollBar {
    id: root

    implicitWidth: 10
    implicitHeight: 10
    padding: 2
    minimumSize: 0.06
    visible: root.policy !== T.ScrollBar.AlwaysOff && root.size < 1

    contentItem: Rectangle {
        radius: width / 2
        color: Theme.white(root.pressed ? 0.4 : root.hovered ? 0.3 : 0.18)
    }
}
