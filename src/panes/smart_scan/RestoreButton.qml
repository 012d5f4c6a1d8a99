import QtQuick
import Klarvik.Kit
import Klarvik.SmartScan

/// A secondary button that leads with a symbol.
SecondaryButton {
    id: root

    required property string symbol

    implicitWidth: label.implicitWidth + 24

    contentItem: Item {
        opacity: root.isEnabled ? 1.0 : 0.5

        Row {
            id: label

            anchors.centerIn: parent
            spacing: 6

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
