pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Line {
    anchors.left: parent ? parent.left : undefined
    anchors.right: parent ? parent.right : undefined
    color: Theme.hairline
}
