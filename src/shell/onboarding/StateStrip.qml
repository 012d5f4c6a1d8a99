pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

/// How things stand, on a strip of that colour.
Rectangle {
    id: root

    required property string symbol
    required property string text
    required property color tint

    implicitHeight: 40
    radius: 8
    color: Qt.alpha(root.tint, 0.14)
    border.width: 1
    border.color: Qt.alpha(root.tint, 0.25)
    Accessible.role: Accessible.StaticText
    Accessible.name: root.text

    Symbol {
        id: icon

        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        name: root.symbol
        size: 15
        color: root.tint
    }

    Label {
        anchors.left: icon.right
        anchors.leftMargin: 10
        anchors.right: parent.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        size: 12
        color: root.tint
    }
}
