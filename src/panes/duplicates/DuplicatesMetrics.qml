pragma Singleton

import QtQml

/// The measures of the rows, and the widths of the columns, shared by headings and rows.
QtObject {
    readonly property int groupHeight: 40
    readonly property int copyHeight: 46
    readonly property int copyIndent: 28
    readonly property int copiesWidth: 70
    readonly property int eachWidth: 90
    readonly property int reclaimableWidth: 110
}
