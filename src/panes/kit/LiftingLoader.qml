pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

// The layers of the mark, taken off from the top one after the other.
Item {
    id: root

    required property real size
    readonly property bool animating: time.running
    readonly property real phase: (time.seconds / 1.8) % 1
    readonly property real unit: root.size / 18

    function lift(layer: int): real {
        const own = root.animating ? root.phase * 1.6 - layer * 0.2 : 0;
        return Math.max(0, Math.min(1, own));
    }

    implicitWidth: root.size
    implicitHeight: root.size
    Accessible.role: Accessible.Animation
    Accessible.name: qsTr("Working")

    LoaderTime {
        id: time
        owner: root
    }

    Repeater {
        model: 3

        Rectangle {
            required property int index
            readonly property real lifted: root.lift(index)
            readonly property real eased: lifted * lifted * (3 - 2 * lifted)

            width: 15 * root.unit
            height: 3 * root.unit
            radius: height / 2
            x: 1.5 * root.unit
            y: (2.1 + index * 5.4) * root.unit - eased * 4 * root.unit
            color: index === 0 ? Theme.textMuted : Theme.accent
            opacity: 1 - eased
        }
    }
}
