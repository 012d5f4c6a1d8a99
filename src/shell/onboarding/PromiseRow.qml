pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

/// One promise of the program.
Item {
    id: root

    required property string symbol
    required property string text

    implicitHeight: 30
    Accessible.role: Accessible.StaticText
    Accessible.name: root.text

    Rectangle {
        width: 30
        height: 30
        radius: 8
        color: Theme.white(0.06)

        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            size: 15
            color: Theme.markLight
        }
    }

    Label {
        anchors.left: parent.left
        anchors.leftMargin: 42
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
    }
}
