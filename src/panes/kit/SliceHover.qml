pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

/// Which slice of a chart the pointer is on. To be put into the chart; the chart itself looks at
/// presses only.
HoverHandler {
    id: root

    required property DonutChart chart
    signal moved(string slice, bool inside)

    readonly property string slice: root.hovered
        ? Kit.donutSliceAt(root.chart.slices, root.point.position.x, root.point.position.y, root.chart.size, root.chart.thickness)
        : ""

    property string previous

    onSliceChanged: {
        if (root.previous !== "")
            root.moved(root.previous, false);
        root.previous = root.slice;
        if (root.slice !== "")
            root.moved(root.slice, true);
    }
}
