pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// The groups. Space selects, Return opens and closes a group, the Menu key opens the menu of a
/// copy.
RowList {
    id: root

    required property DuplicateFinderModel pane
    readonly property int firstRow: root.indexAt(1, root.contentY)

    name: qsTr("Groups of equal files")
    model: root.pane.rows
    groupOf: row => root.pane.rows.groupRow(row)
    onActivated: row => root.pane.activate(row)
    onToggled: row => root.pane.toggleSelection(row)
    onFirstRowChanged: root.pane.rows.lookAt(root.firstRow)
    Keys.onMenuPressed: (root.currentItem as DuplicateRow)?.openMenu()

    delegate: DuplicateRow {
        onKept: root.pane.keepInstead(index)
    }
}
