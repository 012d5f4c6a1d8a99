pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// What the opened application has left behind, by category. Space and Return select.
RowList {
    id: root

    required property AppUninstallerModel pane

    name: qsTr("Leftovers")
    model: root.pane.leftoverList
    onActivated: row => root.pane.toggleLeftover(row)
    onToggled: row => root.pane.toggleLeftover(row)

    delegate: LeftoverRow {
        canToggle: !root.pane.isUninstalling
    }
}
