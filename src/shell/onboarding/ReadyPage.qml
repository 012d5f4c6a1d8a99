pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Shell

/// What the first scan will do, and how things stand before it.
Item {
    id: root

    required property OnboardingModel model

    component SummaryRow: Item {
        id: row

        required property string label
        required property string value
        property color color: Theme.textPrimary

        width: parent?.width ?? 0
        implicitHeight: 38
        Accessible.role: Accessible.StaticText
        Accessible.name: row.label + ": " + row.value

        Label {
            anchors.left: parent.left
            anchors.leftMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            text: row.label
            color: Theme.textSecondary
        }

        Label {
            anchors.right: parent.right
            anchors.rightMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            text: row.value
            weight: Font.Medium
            color: row.color
        }
    }

    Column {
        anchors.fill: parent
        anchors.topMargin: 44
        anchors.leftMargin: 40
        anchors.rightMargin: 40
        spacing: 26

        PageHeading {
            width: parent.width
            title: qsTr("Ready when you are")
            text: qsTr("The first scan takes about a minute and deletes nothing. You will see everything it found, grouped and labelled, before any button becomes destructive.")

            ArtTile {
                anchors.centerIn: parent
                symbol: "sparkles"
            }
        }

        Rectangle {
            width: parent.width
            height: summary.height
            radius: 8
            color: Theme.white(0.05)
            border.width: 1
            border.color: Theme.hairlineStrong

            Column {
                id: summary

                width: parent.width

                SummaryRow {
                    visible: Words.asksForFullDiskAccess
                    label: qsTr("Full Disk Access")
                    value: root.model.isGranted ? qsTr("Granted") : qsTr("Not granted")
                    color: root.model.isGranted ? Theme.safe : Theme.review
                }

                SummaryRow {
                    visible: !Words.asksForFullDiskAccess
                    label: qsTr("Reads")
                    value: qsTr("your home folder, and what everybody may read")
                }

                Line {
                    width: parent.width
                    color: Theme.hairline
                }

                SummaryRow {
                    label: qsTr("Removals go to")
                    value: qsTr("Trash")
                }
            }
        }

        CheckRow {
            title: Words.keepInTray
            isOn: root.model.showMenuBar.isOn
            onToggled: root.model.showMenuBar.toggle()
        }
    }
}
