pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Klarvik.Kit

ListView {
    id: root

    anchors.fill: parent
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    reuseItems: true
    T.ScrollBar.vertical: KitScrollBar {}
}
