pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

/// A symbol on a tile of the program's own colours.
Rectangle {
    id: root

    required property string symbol
    property color tint: Theme.markLight

    width: 84
    height: 84
    radius: width * 0.225
    antialiasing: true
    border.width: 1
    border.color: Theme.white(0.1)
    gradient: Gradient {
        GradientStop {
            position: 0
            color: Theme.iconTop
        }
        GradientStop {
            position: 1
            color: Theme.iconBottom
        }
    }

    Symbol {
        anchors.centerIn: parent
        name: root.symbol
        size: 40
        color: root.tint
    }
}
