pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Panes

/// The chart, and below it what was found. Space selects, Return opens and closes.
ColumnLayout {
    id: root

    required property SystemDataModel pane

    anchors.fill: parent
    spacing: 0

    SystemDataSummary {
        Layout.fillWidth: true
        model: root.pane
    }

    Item {
        Layout.fillWidth: true
        Layout.fillHeight: true

        RowList {
            name: qsTr("Kinds of System Data")
            model: root.pane.table
            groupOf: row => root.pane.table.kindRow(row)
            onActivated: row => root.pane.table.activate(row)
            onToggled: row => root.pane.table.toggleSelection(row)

            delegate: SystemDataRow {
                model: root.pane
            }

            remove: Transition {
                enabled: !Kit.reduceMotion
                NumberAnimation {
                    property: "opacity"
                    to: 0
                    duration: 280
                    easing.type: Easing.OutCubic
                }
            }

            removeDisplaced: Transition {
                enabled: !Kit.reduceMotion
                NumberAnimation {
                    property: "y"
                    duration: 280
                    easing.type: Easing.OutCubic
                }
            }
        }
    }
}
