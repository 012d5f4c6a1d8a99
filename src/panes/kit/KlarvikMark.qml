pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

// Three layers in a bay of light; the top one is being lifted off.
Item {
    id: root

    required property real size
    readonly property real unit: root.size / 18

    implicitWidth: root.size
    implicitHeight: root.size
    Accessible.role: Accessible.Graphic
    Accessible.name: "Klarvik"

    component Layer: Rectangle {
        id: layer

        required property real offset
        required property color near
        required property color far

        x: 1.5 * root.unit
        y: layer.offset * root.unit
        width: 15 * root.unit
        height: 3.4 * root.unit
        radius: height / 2
        antialiasing: true
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: layer.near }
            GradientStop { position: 1; color: layer.far }
        }
    }

    Layer {
        offset: 13.1
        near: Theme.markDeep
        far: Theme.accent
    }

    Layer {
        offset: 8.3
        near: Theme.accent
        far: Theme.markLight
    }

    Layer {
        offset: 2.6
        near: Theme.markLight
        far: Theme.markPale
        transformOrigin: Item.Left
        rotation: -9
    }
}
