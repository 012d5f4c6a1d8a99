import QtQuick
import Klarvik.Kit

/// A row that fades in when it is made, a little later the further down it stands.
Item {
    id: root

    required property int index

    property bool arrived: false

    opacity: arrived || Kit.reduceMotion ? 1 : 0

    Behavior on opacity {
        SequentialAnimation {
            PauseAnimation {
                duration: Math.max(0, Math.min(root.index, 10)) * 25
            }
            NumberAnimation {
                duration: 220
                easing.type: Easing.OutCubic
            }
        }
    }

    Component.onCompleted: arrived = true
}
