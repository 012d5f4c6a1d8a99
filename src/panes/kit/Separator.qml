pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Rectangle {
    id: root

    anchors.left: parent ? parent.left : undefined
    anchors.right: parent ? parent.right : undefined
    height: 1
    color: Theme.hairline
}
