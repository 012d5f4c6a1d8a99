pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Klarvik.Kit

T.Control {
    id: root

    property string title
    property string help
    property bool pressableEnabled: true
    // How far the area that answers a press reaches beyond the element, on each side.
    property real tapMargin: 0
    property real ringGap: 2
    readonly property bool down: area.pressed && area.containsMouse
    signal action()

    enabled: root.pressableEnabled
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.Button
    Accessible.name: root.title
    Accessible.description: root.help
    Accessible.focusable: true
    Accessible.onPressAction: root.action()
    onHoveredChanged: tip.setSource(root.hovered && root.help !== "" ? "KitToolTip.qml" : "", {
        text: root.help,
        shown: true
    })
    Keys.onSpacePressed: root.action()
    Keys.onReturnPressed: root.action()
    Keys.onEnterPressed: root.action()

    // Below the content, so that what can be pressed inside goes first.
    MouseArea {
        id: area
        z: -1
        anchors.fill: parent
        anchors.margins: -root.tapMargin
        onClicked: root.action()
    }

    FocusRing {
        shown: root.visualFocus
        gap: root.ringGap
    }

    Loader {
        id: tip
        anchors.fill: parent
    }
}
