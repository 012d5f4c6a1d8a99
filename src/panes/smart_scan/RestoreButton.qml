import QtQuick
import Klarvik.Kit

/// A secondary button that leads with a symbol.
Pressable {
    id: root

    required property string symbol
    property bool isEnabled: true

    pressableEnabled: isEnabled
    implicitWidth: content.implicitWidth + 24
    implicitHeight: 28
    opacity: isEnabled ? 1 : 0.4

    Rectangle {
        anchors.fill: parent
        radius: Theme.cornerRadius
        color: Theme.white(root.down ? 0.1 : root.hovered ? 0.05 : 0)
        border.width: 1
        border.color: Theme.white(0.2)
    }

    Row {
        id: content

        anchors.centerIn: parent
        spacing: 6

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: root.symbol
            size: 13
            color: Theme.textPrimary
        }

        KitText {
            anchors.verticalCenter: parent.verticalCenter
            text: root.title
        }
    }
}
