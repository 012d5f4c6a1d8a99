pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Item {
    id: root

    default required property Component content
    readonly property bool appeared: delay.raised

    implicitWidth: loader.implicitWidth
    implicitHeight: loader.implicitHeight

    DelayedFlag {
        id: delay
        running: root.visible
    }

    Loader {
        id: loader
        anchors.centerIn: parent
        active: root.appeared
        sourceComponent: root.content
    }
}
