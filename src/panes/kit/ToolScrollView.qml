pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Klarvik.Kit

Flickable {
    id: root

    default property alias content: column.data
    property alias spacing: column.spacing

    anchors.fill: parent
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    contentHeight: column.height
    T.ScrollBar.vertical: KitScrollBar {}

    Column {
        id: column
        width: root.width
    }
}
