pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Klarvik.Kit
import Klarvik.Panes

/// The ring of what fills the disk, and beside it what each slice stands for.
RowLayout {
    id: root

    required property StorageAnalyticsModel model

    spacing: 32

    DonutChart {
        id: chart

        property real drawn: root.model.animateCharts && root.model.isMeasured ? 1 : 0

        Layout.alignment: Qt.AlignVCenter
        Layout.leftMargin: 6
        slices: root.model.slices
        size: 190
        thickness: 26
        centerTitle: root.model.usedText
        centerSubtitle: qsTr("in use")
        highlighted: root.model.highlighted
        sweep: chart.drawn
        onSelect: slice => root.model.openBucket(slice)

        Behavior on drawn {
            enabled: !Kit.reduceMotion
            NumberAnimation {
                duration: 500
                easing.type: Easing.OutCubic
            }
        }

        SliceHover {
            chart: chart
            onMoved: (slice, inside) => root.model.hover(slice, inside)
        }
    }

    Column {
        Layout.fillWidth: true
        Layout.alignment: Qt.AlignVCenter

        Repeater {
            model: root.model.legend

            DonutLegendRow {
                id: row

                required property storageLegendRow modelData

                width: parent ? parent.width : implicitWidth
                slice: row.modelData.slice
                share: row.modelData.share
                subtitle: row.modelData.size
                isHighlighted: root.model.highlighted === row.modelData.slice.id
                canTap: row.modelData.canOpen
                onTap: root.model.openBucket(row.modelData.slice.id)
                onHover: inside => root.model.hover(row.modelData.slice.id, inside)
            }
        }
    }
}
