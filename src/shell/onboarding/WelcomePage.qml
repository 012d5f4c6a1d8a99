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
            title: qsTr("Klarvik finds what the Finder hides")
            text: qsTr("App caches, old iPhone backups, browser leftovers, logs and the residue apps leave behind when you drag them to the Trash.")

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
                text: qsTr("Nothing leaves your Mac. No account, no telemetry.")
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
}
