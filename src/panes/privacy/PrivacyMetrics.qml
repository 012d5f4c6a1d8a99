pragma Singleton

import QtQuick

/// Measures that the headings and the rows of the pane share, in points.
QtObject {
    readonly property int costWidth: 228
    readonly property int itemsWidth: 64
    readonly property int sizeWidth: 96
    readonly property int rowHeight: 46
    readonly property int headingHeight: 36
}
