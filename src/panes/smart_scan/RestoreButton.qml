import QtQuick
import Klarvik.Kit
import Klarvik.SmartScan

/// A button in the manner of the secondary one that leads with a symbol.
Pressable {
    id: root

    required property string symbol
    property bool isEnabled: true

    pressableEnabled: root.isEnabled
    implicitWidth: label.implicitWidth + 24
    implicitHeight: 28
    opacity: root.isEnabled ? 1.0 : 0.5

    background: Rectangle {
        radius: Theme.cornerRadius
        color: root.down ? Theme.white(0.1) : root.hovered ? Theme.white(0.05) : Theme.clear
        border.width: 1
        border.color: Theme.white(0.2)
    }

    contentItem: Item {
        Row {
            id: label

            anchors.centerIn: parent
            spacing: 5

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: root.symbol
                size: 12
                color: Theme.textPrimary
            }

            KitText {
                anchors.verticalCenter: parent.verticalCenter
                text: root.title
            }
        }
    }
}
