pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Klarvik.Kit

T.AbstractButton {
    id: root

    property string title
    property string help
    property bool pressableEnabled: true
    property real ringGap: 2
    signal action()

    text: root.title
    enabled: root.pressableEnabled
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.Button
    Accessible.name: root.title
    Accessible.description: root.help
    Accessible.onPressAction: root.action()
    Keys.onReturnPressed: root.action()
    Keys.onEnterPressed: root.action()
    onClicked: root.action()

    FocusRing {
        shown: root.visualFocus
        gap: root.ringGap
    }

    Loader {
        active: root.help !== "" && root.hovered
        sourceComponent: KitToolTip {
            parent: root
            text: root.help
            shown: root.hovered && !root.down
        }
    }
}
