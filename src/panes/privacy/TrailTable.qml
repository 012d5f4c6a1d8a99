pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// The trails found, by section. Space and Return select.
RowList {
    id: root

    required property PrivacyCleanerModel pane

    name: qsTr("Trails found")
    model: root.pane.trailList
    onActivated: row => root.pane.toggle(row)
    onToggled: row => root.pane.toggle(row)

    delegate: TrailRow {
        isLocked: root.pane.isCleaning
    }
}
