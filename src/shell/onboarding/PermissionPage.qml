pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Shell

/// Asks for the one permission, and follows it.
Item {
    id: root

    required property OnboardingModel model

    component Number: Rectangle {
        id: number

        required property int value

        width: 20
        height: 20
        radius: 10
        color: Theme.white(0.25)

        Label {
            anchors.centerIn: parent
            text: number.value
            size: 11
            weight: Font.DemiBold
        }
    }

    component Step: Item {
        id: step

        required property int number
        required property string text
        default property alias trailing: slot.data

        width: parent?.width ?? 0
        implicitHeight: 22
        Accessible.role: Accessible.StaticText
        Accessible.name: step.text

        Number {
            anchors.verticalCenter: parent.verticalCenter
            value: step.number
        }

        Row {
            id: slot

            anchors.left: parent.left
            anchors.leftMargin: 32
            anchors.verticalCenter: parent.verticalCenter
            spacing: 10

            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: step.text
            }
        }
    }

    Column {
        anchors.fill: parent
        anchors.topMargin: 40
        anchors.leftMargin: 40
        anchors.rightMargin: 40
        spacing: 24

        PageHeading {
            width: parent.width
            title: qsTr("Give it Full Disk Access")
            text: qsTr("Without this permission macOS hides the caches and backups that take up the most room, and Klarvik reports far less than is really there.")

            ArtTile {
                anchors.centerIn: parent
                symbol: root.model.isGranted ? "checkmark.shield.fill" : "lock.shield.fill"
                tint: root.model.isGranted ? Theme.safe : Theme.markLight
            }
        }

        StateStrip {
            width: parent.width
            visible: root.model.isGranted
            symbol: "checkmark.shield.fill"
            tint: Theme.safe
            text: qsTr("Full Disk Access granted. Klarvik can see everything it measures.")
        }

        Column {
            width: parent.width
            visible: !root.model.isGranted
            spacing: 10

            Step {
                number: 1
                text: qsTr("Open Privacy & Security → Full Disk Access")

                TextButton {
                    anchors.verticalCenter: parent.verticalCenter
                    title: qsTr("Open for me")
                    onAction: root.model.openSettings()
                }
            }

            Step {
                number: 2
                text: qsTr("Find Klarvik in the list and switch it on")
            }

            Step {
                number: 3
                text: qsTr("Come back here, then reopen Klarvik to apply it")
            }
        }

        StateStrip {
            width: parent.width
            visible: !root.model.isGranted
            symbol: "clock.arrow.2.circlepath"
            tint: Theme.review
            text: qsTr("Waiting for permission — status updates automatically.")
        }

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: !root.model.isGranted
            spacing: 8

            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Already switched it on?")
                size: 12
                color: Theme.textSecondary
            }

            TextButton {
                anchors.verticalCenter: parent.verticalCenter
                title: qsTr("Reopen Klarvik")
                onAction: root.model.reopen()
            }
        }
    }

    /// How things stand, on a strip of that colour.
    component StateStrip: Rectangle {
        id: stateStrip

        required property string symbol
        required property string text
        required property color tint

        implicitHeight: 40
        radius: 8
        color: Qt.alpha(stateStrip.tint, 0.14)
        border.width: 1
        border.color: Qt.alpha(stateStrip.tint, 0.25)
        Accessible.role: Accessible.StaticText
        Accessible.name: stateStrip.text

        Symbol {
            id: icon

            anchors.left: parent.left
            anchors.leftMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            name: stateStrip.symbol
            size: 15
            color: stateStrip.tint
        }

        Label {
            anchors.left: icon.right
            anchors.leftMargin: 10
            anchors.right: parent.right
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            text: stateStrip.text
            size: 12
            color: stateStrip.tint
        }
    }
}
