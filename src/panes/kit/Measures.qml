pragma Singleton

import QtQml
import Klarvik.Kit

/// What the tables of all panes measure, in points, so that nothing moves from one to the next.
QtObject {
    /// One height for every row: a view of rows of one height knows exactly how long it is.
    readonly property int rowHeight: 46
    /// Of a heading among the rows.
    readonly property int headingHeight: 36
    readonly property int filterHeight: 54
    /// How much further in a row begins that belongs to the one above it.
    readonly property int indent: 28

    readonly property int sizeWidth: 104
    readonly property int countWidth: 84
    readonly property int shareWidth: 56
    readonly property int safetyWidth: 80
    readonly property int statusWidth: 132
    readonly property int kindWidth: 90
    readonly property int dateWidth: 120
    readonly property int noteWidth: 228

    /// In a wider window nothing but the space on both sides grows.
    readonly property int contentWidth: 1120

    /// A column of figures of this width gives some of it to the names where the pane is narrow.
    function figures(width: int, paneWidth: real): int {
        return paneWidth < 760 ? Math.round(width * 0.75) : width;
    }

    /// The space on each side of what a pane of this width shows.
    function side(paneWidth: real): real {
        return Math.max(Theme.sidePadding, Math.floor((paneWidth - contentWidth) / 2));
    }
}
