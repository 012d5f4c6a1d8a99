pragma Singleton

import QtQml

/// The widths of the columns, shared by headings and rows.
QtObject {
    readonly property int rowHeight: 46
    readonly property int kindWidth: 90
    readonly property int lastOpenedWidth: 120
    readonly property int sizeWidth: 90
}
