pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Shell

/// The program's dashboard: how full the disk is, the sections, and the Trash.
Rectangle {
    id: root

    required property AppShellModel shell

    color: Theme.raised

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        RowLayout {
            Layout.fillWidth: true
            Layout.leftMargin: 16
            Layout.rightMargin: 10
            Layout.topMargin: 18
            Layout.bottomMargin: 16
            spacing: 9

            KlarvikMark {
                size: 22
            }

            Label {
                text: "Klarvik"
                size: 14
                weight: Font.DemiBold
            }

            Item {
                Layout.fillWidth: true
            }

            ApplicationMenu {
                commands: root.shell.commands
            }
        }

        DiskBlock {
            Layout.fillWidth: true
            Layout.leftMargin: 16
            Layout.rightMargin: 16
            Layout.bottomMargin: 18
            model: root.shell.disk
        }

        Repeater {
            model: root.shell.sidebar

            SidebarRow {
                Layout.fillWidth: true
                Layout.leftMargin: 8
                Layout.rightMargin: 8
                onAction: root.shell.sidebar.select(index)
            }
        }

        Item {
            Layout.fillHeight: true
        }

        Item {
            Layout.fillWidth: true
            implicitHeight: 1

            Separator { color: Theme.hairlineStrong }
        }

        TrashBlock {
            Layout.fillWidth: true
            Layout.margins: 8
            model: root.shell.trash
        }

        Item {
            Layout.fillWidth: true
            implicitHeight: 1

            Separator { color: Theme.hairlineStrong }
        }

        SymbolButton {
            Layout.margins: 8
            symbol: "gearshape"
            title: qsTr("Settings")
            help: qsTr("Settings")
            size: 14
            onAction: root.shell.openSettings()
        }
    }

    /// The button that opens the application menu.
    component ApplicationMenu: SymbolButton {
        id: applicationMenu

        required property AppCommandsModel commands

        symbol: "chevron.down"
        title: qsTr("Klarvik menu")
        size: 11
        Accessible.role: Accessible.ButtonMenu
        onAction: menu.open()

        MenuPopup {
            id: menu
            x: applicationMenu.width - menu.width
            y: applicationMenu.height + 4
            entries: applicationMenu.commands.titles
            hints: applicationMenu.commands.hints
            onChosen: index => applicationMenu.commands.run(index)
        }
    }
}
