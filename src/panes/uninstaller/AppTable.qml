pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Uninstaller

/// Every installed application, or those searched for. Return and Space open one.
RowList {
    id: root

    required property AppUninstallerModel pane

    /// An application was opened from the keyboard, and this list goes out of sight with the focus.
    signal openedByKey

    function open(row: int) {
        const byKey = root.activeFocus;
        root.pane.open(row);
        if (byKey)
            root.openedByKey();
    }

    name: qsTr("Installed apps")
    rowHeight: UninstallerMetrics.rowHeight
    pressTakesFocus: false
    model: root.pane.appList
    onActivated: row => root.open(row)
    onToggled: row => root.open(row)

    delegate: AppRow {}
}
