pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Item {
    id: root

    required property real size
    property color tint: Theme.accent
    readonly property real phase: time.seconds
    readonly property real dot: Math.max(2, Math.round(root.size / 5))

    implicitWidth: root.size
    implicitHeight: root.size
    Accessible.role: Accessible.Animation
    Accessible.name: qsTr("Working")

    LoaderTime {
        id: time
        owner: root
    }

    Row {
        anchors.centerIn: parent
        spacing: Math.max(1, (root.size - 3 * root.dot) / 2)

        Repeater {
            model: 3

            Rectangle {
                required property int index

                width: root.dot
                height: root.dot
                radius: root.dot / 2
                color: root.tint
                opacity: Kit.inlineLoaderOpacity(index, root.phase)
            }
        }
    }
}
