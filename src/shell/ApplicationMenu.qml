pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Shell

/// The button that opens the application menu.
SymbolButton {
    id: root

    required property AppCommandsModel commands

    symbol: "chevron.down"
    title: qsTr("Klarvik menu")
    size: 11
    Accessible.role: Accessible.ButtonMenu
    onAction: menu.open()

    MenuPopup {
        id: menu
        x: root.width - menu.width
        y: root.height + 4
        entries: root.commands.titles
        hints: root.commands.shortcuts
        onChosen: index => root.commands.run(index)
    }
}
