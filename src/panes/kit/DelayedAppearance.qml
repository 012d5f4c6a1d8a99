pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Item {
    id: root

    default property alias content: holder.data
    readonly property bool appeared: delay.raised

    implicitWidth: holder.childrenRect.width
    implicitHeight: holder.childrenRect.height

    DelayedFlag {
        id: delay
        running: root.visible
    }

    Item {
        id: holder
        anchors.fill: parent
        visible: root.appeared
    }
}
