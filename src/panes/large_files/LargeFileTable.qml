pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// The files. Space and Return select.
RowList {
    id: root

    required property LargeFileFinderModel pane
    readonly property int firstRow: root.indexAt(1, root.contentY)

    function lookAtRows() {
        root.pane.rows.lookAt(root.firstRow, root.currentIndex);
    }

    name: qsTr("Large files")
    model: root.pane.rows
    onActivated: row => root.pane.toggleSelection(row)
    onToggled: row => root.pane.toggleSelection(row)
    onFirstRowChanged: root.lookAtRows()
    onCurrentIndexChanged: root.lookAtRows()

    delegate: LargeFileRow {}

    Connections {
        target: root.pane

        function onViewChanged() {
            root.positionViewAtBeginning();
        }
    }
}
