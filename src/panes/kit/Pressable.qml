pragma ComponentBehavior: Bound

import QtQuick
import Klarvik.Kit

// Built on a plain item: the controls of Qt 6.4 do not tell assistive tools the role that is set on
// them.
Item {
    id: root

    property string title
    property string help
    // Whether the tooltip stands to the right instead of below.
    property bool isHelpBeside: false
    property bool pressableEnabled: true
    // How far the area that answers a press reaches beyond the element, on each side.
    property real tapMargin: 0
    property real ringGap: 2
    property bool isOnAccent: false
    property real leftPadding: 0
    property real rightPadding: 0
    // Each fills the element.
    property alias background: backgroundSlot.data
    property alias contentItem: contentSlot.data
    readonly property bool down: area.pressed && area.containsMouse
    readonly property alias hovered: hover.hovered
    readonly property bool visualFocus: root.activeFocus && Kit.usesKeys
    signal action()

    // A key that is held is one press.
    function answer(event: KeyEvent) {
        if (!event.isAutoRepeat)
            root.action();
    }

    // Qt leaves the focus, and so the keys, with what is no longer on the screen.
    enabled: root.pressableEnabled && root.visible
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: root.title
    Accessible.description: root.help
    Accessible.focusable: root.activeFocusOnTab
    Accessible.onPressAction: {
        if (root.enabled)
            root.action();
    }
    Keys.onSpacePressed: event => root.answer(event)
    Keys.onReturnPressed: event => root.answer(event)
    Keys.onEnterPressed: event => root.answer(event)

    HoverHandler {
        id: hover
    }

    ContentSlot {
        id: backgroundSlot
        anchors.fill: parent
    }

    // Below the content, so that what can be pressed inside goes first.
    MouseArea {
        id: area
        anchors.fill: parent
        anchors.margins: -root.tapMargin
        onClicked: root.action()
    }

    ContentSlot {
        id: contentSlot
        anchors.fill: parent
        anchors.leftMargin: root.leftPadding
        anchors.rightMargin: root.rightPadding
    }

    FocusRing {
        shown: root.visualFocus
        gap: root.ringGap
        isOnAccent: root.isOnAccent
    }

    HelpTip {
        text: root.help
        hovered: root.hovered
        isBeside: root.isHelpBeside
    }
}
