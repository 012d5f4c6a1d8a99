pragma Singleton

import QtQuick

/// Measures that the headings and the rows of the pane share, in points.
QtObject {
    readonly property int sizeWidth: 104
    readonly property int whatItIsWidth: 200
    /// The same on both levels, so that nothing jumps between them.
    readonly property int filterHeight: 54
    /// One height for every row: a view of rows of one height knows exactly how long it is.
    readonly property int rowHeight: 46
}
