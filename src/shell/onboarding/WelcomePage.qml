pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Shell

/// What the program does, and what it promises.
Item {
    id: root

    Column {
        anchors.fill: parent
        anchors.topMargin: 44
        anchors.leftMargin: 40
        anchors.rightMargin: 40
        spacing: 30

        PageHeading {
            width: parent.width
            title: Words.welcomeTitle
            text: Words.welcomeText

            KlarvikAppIcon {
                anchors.centerIn: parent
                size: 92
            }
        }

        Column {
            width: parent.width
            spacing: 14

            PromiseRow {
                width: parent.width
                symbol: "lock.shield.fill"
                text: Words.nothingLeaves
            }

            PromiseRow {
                width: parent.width
                symbol: "checkmark.circle.fill"
                text: qsTr("Every item is labelled Safe or Review before anything moves.")
            }

            PromiseRow {
                width: parent.width
                symbol: "arrow.uturn.backward"
                text: qsTr("Removals go to the Trash, so anything can be put back.")
            }
        }
    }

    /// One promise of the program.
    component PromiseRow: Item {
        id: promiseRow

        required property string symbol
        required property string text

        implicitHeight: 30
        Accessible.role: Accessible.StaticText
        Accessible.name: promiseRow.text

        Rectangle {
            width: 30
            height: 30
            radius: 8
            color: Theme.white(0.06)

            Symbol {
                anchors.centerIn: parent
                name: promiseRow.symbol
                size: 15
                color: Theme.markLight
            }
        }

        Label {
            anchors.left: parent.left
            anchors.leftMargin: 42
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: promiseRow.text
        }
    }
}
