pragma Singleton

import QtQuick

/// Measures that the rows of the pane share, in points.
QtObject {
    readonly property int statusWidth: 132
    readonly property int shareWidth: 56
    readonly property int sizeWidth: 96
    readonly property int rowHeight: 48
    readonly property int columnSpacing: 12
    /// Where the names of items begin below those of their kinds.
    readonly property int indent: 26
}
