pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Shell

/// The Updates page of the settings.
Item {
    id: root

    required property UpdateSettingsModel model

    implicitWidth: 600
    implicitHeight: page.y + page.height

    component PanelRow: Item {
        anchors.left: parent?.left
        anchors.right: parent?.right
        anchors.leftMargin: 16
        anchors.rightMargin: 16
    }

    Column {
        id: page

        x: 24
        y: 22
        width: root.width - 48
        spacing: 16

        Row {
            height: 26
            spacing: 10

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: "arrow.down.circle.fill"
                size: 20
                color: Theme.accent
            }

            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Updates")
                size: 17
                weight: Font.DemiBold
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
        }

        Panel {
            width: parent.width
            sidePadding: 0
            verticalPadding: 0

            PanelRow {
                height: 44

                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    text: qsTr("Version")
                }

                Label {
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    text: root.model.version
                    color: Theme.textSecondary
                }
            }

            Separator {}

            PanelRow {
                height: 64

                Symbol {
                    id: statusSymbol

                    anchors.left: parent.left
                    anchors.verticalCenter: parent.verticalCenter
                    name: root.model.symbol
                    size: 18
                    color: root.model.symbolColor
                }

                Column {
                    anchors.left: statusSymbol.right
                    anchors.leftMargin: 12
                    anchors.right: check.left
                    anchors.rightMargin: 16
                    anchors.verticalCenter: parent.verticalCenter
                    spacing: 3

                    Label {
                        width: parent.width
                        text: root.model.title
                    }

                    ElidedText {
                        width: parent.width
                        text: root.model.detail
                        size: 11
                        color: Theme.textTertiary
                        wrapMode: Text.Wrap
                        elide: Text.ElideRight
                        maximumLineCount: 2
                    }
                }

                CheckButton {
                    id: check

                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    title: root.model.buttonTitle
                    isBusy: root.model.isChecking
                    onAction: root.model.checkForUpdates()
                }
            }

            Separator {}

            PanelRow {
                height: 64

                Column {
                    anchors.left: parent.left
                    anchors.right: automatic.left
                    anchors.rightMargin: 16
                    anchors.verticalCenter: parent.verticalCenter
                    spacing: 3

                    Label {
                        width: parent.width
                        text: qsTr("Check automatically")
                    }

                    Label {
                        width: parent.width
                        text: qsTr("Klarvik checks for new versions in the background")
                        size: 11
                        color: Theme.textTertiary
                    }
                }

                ToggleSwitch {
                    id: automatic

                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    title: qsTr("Check automatically")
                    isOn: root.model.autoCheck
                    onToggled: root.model.toggleAutoCheck()
                }
            }
        }

        TextButton {
            visible: root.model.hasReleaseNotes
            title: qsTr("Release notes")
            onAction: root.model.openReleaseNotes()
        }
    }

    /// A switch that is on or off.
    component ToggleSwitch: Pressable {
        id: toggleSwitch

        required property bool isOn
        signal toggled()

        implicitWidth: 36
        implicitHeight: 20
        Accessible.role: Accessible.CheckBox
        Accessible.checkable: true
        Accessible.checked: toggleSwitch.isOn
        Accessible.onToggleAction: toggleSwitch.action()
        onAction: toggleSwitch.toggled()

        background: Rectangle {
            radius: height / 2
            color: toggleSwitch.isOn ? Theme.accent : toggleSwitch.hovered ? Theme.white(0.2) : Theme.white(0.14)
            opacity: toggleSwitch.down ? 0.7 : 1.0
        }

        contentItem: Item {
            Rectangle {
                width: 16
                height: 16
                radius: 8
                y: 2
                x: toggleSwitch.isOn ? parent.width - width - 2 : 2
                color: Theme.onAccent

                Behavior on x {
                    enabled: !Kit.reduceMotion
                    NumberAnimation {
                        duration: 120
                    }
                }
            }
        }
    }
}
