pragma Singleton

import QtQuick

/// Measures that the headings and the rows of the pane's tables share, in points.
QtObject {
    readonly property int safetyWidth: 80
    readonly property int itemsWidth: 84
    readonly property int sizeWidth: 104
    /// One height for every row: a view of rows of one height knows exactly how long it is.
    readonly property int rowHeight: 42
    readonly property int columnSpacing: 12
}
