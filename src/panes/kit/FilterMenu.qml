pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

Pressable {
    id: root

    required property list<string> entries
    property int currentIndex: 0
    signal chosen(int index)

    title: root.entries[root.currentIndex] ?? ""
    implicitWidth: label.implicitWidth + chevron.implicitWidth + 24
    implicitHeight: label.implicitHeight + 8
    Accessible.role: Accessible.ComboBox
    onAction: menu.open()

    background: Rectangle {
        radius: height / 2
        color: Theme.white(root.down || menu.isOpen ? 0.14 : root.hovered ? 0.1 : 0.07)
    }

    contentItem: Item {
        Label {
            id: label
            x: 10
            anchors.verticalCenter: parent.verticalCenter
            text: root.title
            size: 12
        }

        Symbol {
            id: chevron
            anchors.right: parent.right
            anchors.rightMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.up.chevron.down"
            size: 9
            color: Theme.textMuted
        }
    }

    MenuPopup {
        id: menu
        y: root.height + 4
        entries: root.entries
        currentIndex: root.currentIndex
        marksCurrent: true
        onChosen: index => root.chosen(index)
    }
}
