pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit
import Klarvik.Panes

/// Every installed application, or those searched for. Return and Space open one.
RowList {
    id: root

    required property AppUninstallerModel pane

    /// An application was opened, and this list goes out of sight with the focus.
    signal leftWithFocus

    function open(row: int) {
        const hadFocus = root.activeFocus;
        root.pane.open(row);
        if (hadFocus)
            root.leftWithFocus();
    }

    name: qsTr("Installed apps")
    pressTakesFocus: false
    model: root.pane.appList
    onActivated: row => root.open(row)
    onToggled: row => root.open(row)

    delegate: AppRow {}
}
