pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// The ring of what fills the disk, and beside it what each slice stands for: in columns, as many
/// as fit, so that a share stands near its name and the legend is about as high as the ring.
Item {
    id: root

    required property StorageAnalyticsModel model

    readonly property int gap: 32
    readonly property int narrowestColumn: 220
    readonly property int widestColumn: 340
    readonly property int rowCount: root.model.legend.length
    readonly property real legendRoom: root.width - chart.x - chart.width - root.gap
    readonly property int columnCount: Math.max(1, Math.min(Math.floor(root.legendRoom / root.narrowestColumn), Math.ceil(root.rowCount / 7)))
    readonly property int columnWidth: Math.min(root.widestColumn, Math.floor(root.legendRoom / root.columnCount))

    implicitHeight: Math.max(chart.height, legend.height)

    DonutChart {
        id: chart

        property real drawn: 0

        x: 6
        y: Math.floor((root.height - height) / 2)
        slices: root.model.slices
        size: 210
        thickness: 28
        centerTitle: root.model.usedText
        centerSubtitle: qsTr("in use")
        highlighted: root.model.highlighted
        sweep: chart.drawn
        onSelect: slice => root.model.openBucket(slice)
        // The ring grows when it appears: what a property begins with is not animated.
        Component.onCompleted: chart.drawn = Qt.binding(() => root.model.animateCharts ? 1 : 0)

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

    Grid {
        id: legend

        x: chart.x + chart.width + root.gap
        y: Math.floor((root.height - height) / 2)
        flow: Grid.TopToBottom
        columns: root.columnCount
        rows: Math.ceil(root.rowCount / root.columnCount)

        Repeater {
            model: root.model.legend

            DonutLegendRow {
                id: row

                required property storageLegendRow modelData

                width: root.columnWidth
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
